#include "collect/end_of_text.h"

#include <gtest/gtest.h>

#include <string>

#include "collect/line_scanner.h"

namespace {

TEST(EndOfText, EndsAPartQuietlyAndKeepsTheValuesSoFar) {
  CollectedData text(nullptr, "head\nfirst\n");
  std::string first;
  std::string second = "as it was";
  UntilEndOfText([&] {
    first = text.NextLine();
    second = text.NextLine();
  });
  EXPECT_EQ(first, "first\n");
  EXPECT_EQ(second, "as it was");
}

TEST(EndOfText, LetsOtherFailuresPass) {
  EXPECT_THROW(UntilEndOfText([] { throw std::length_error("too long"); }), std::length_error);
}

}  // namespace
