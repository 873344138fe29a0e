#include "host/hxahost/views/report/write_template.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace hxahost;

TemplateSlot Slot(std::string_view mark, const std::string& text) {
  return {mark, [text](std::ostream& out) { out << text; }};
}

std::string Filled(std::string_view text, const std::vector<TemplateSlot>& slots) {
  std::ostringstream out;
  WriteTemplate(out, text, slots);
  return out.str();
}

TEST(WriteTemplate, PutsEachTextInItsPlace) {
  EXPECT_EQ(Filled("a @ONE@ b @TWO@ c", {Slot("@ONE@", "1"), Slot("@TWO@", "2")}), "a 1 b 2 c");
}

TEST(WriteTemplate, FillsSlotsAtBothEnds) {
  EXPECT_EQ(Filled("@ONE@@TWO@", {Slot("@ONE@", "1"), Slot("@TWO@", "")}), "1");
}

TEST(WriteTemplate, DoesNotSearchTheReplacements) {
  EXPECT_EQ(Filled("a @ONE@ b @TWO@ c", {Slot("@ONE@", "@TWO@ @ONE@"), Slot("@TWO@", "2")}), "a @TWO@ @ONE@ b 2 c");
}

TEST(WriteTemplate, RefusesATemplateWithoutTheSlot) {
  EXPECT_THROW(Filled("a", {Slot("@ONE@", "1")}), std::logic_error);
  EXPECT_THROW(Filled("@TWO@ @ONE@", {Slot("@ONE@", "1"), Slot("@TWO@", "2")}), std::logic_error);
}

}  // namespace
