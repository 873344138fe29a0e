#include "host/hxahost/views/report/report_template.h"

#include <gmock/gmock.h>

#include <string>

#include "tests/support/contains_pattern.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;
using testing::Not;

std::size_t Count(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) ++count;
  return count;
}

TEST(ReportTemplate, IsAWholePageWithOnePlaceForEachKindOfData) {
  const std::string_view page = ReportTemplate();
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
  EXPECT_TRUE(page.ends_with("</html>\n"));
  EXPECT_EQ(Count(page, "@TITLE@"), 2U);
  EXPECT_EQ(Count(page, "@ORIGIN@"), 1U);
  EXPECT_EQ(Count(page, "@SUMMARY@"), 1U);
  EXPECT_EQ(Count(page, "@QUERY_DATA@"), 1U);
  EXPECT_EQ(Count(page, "@REPORT_DATA@"), 1U);
  EXPECT_EQ(Count(page, "@PROOF_DATA@"), 1U);
  EXPECT_LT(page.find("@QUERY_DATA@"), page.find("@REPORT_DATA@"));
  EXPECT_LT(page.find("@REPORT_DATA@"), page.find("@PROOF_DATA@"));
}

TEST(ReportTemplate, ContainsItsStyleAndItsScript) {
  const std::string page(ReportTemplate());
  EXPECT_THAT(page, HasSubstr("<style>:root {"));
  EXPECT_THAT(page, HasSubstr("<script>\"use strict\";\n"));
  for (const char* const mark : {"@STYLE@", "@SCRIPT@", "@STYLE_HASH@", "@SCRIPT_HASH@"}) {
    EXPECT_THAT(page, Not(HasSubstr(mark)));
  }
}

TEST(ReportTemplate, LetsNothingRunButItsOwnScriptAndLoadsNothing) {
  const std::string page(ReportTemplate());
  EXPECT_THAT(page, ContainsPattern("default-src 'none'; script-src 'sha256-[A-Za-z0-9+/]*='; style-src 'sha256-"));
  for (const char* const reference : {" src=", "@import", "url(", "<link", "<iframe", "fetch(", "XMLHttpRequest"}) {
    EXPECT_THAT(page, Not(HasSubstr(reference))) << reference;
  }
}

TEST(ReportTemplate, NeverReadsTextAsMarkupOrAsProgram) {
  const std::string page(ReportTemplate());
  for (const char* const reader : {"innerHTML", "outerHTML", "insertAdjacentHTML", "document.write", "DOMParser",
                                   "createContextualFragment", "eval(", "new Function", "setTimeout(", "javascript:"}) {
    EXPECT_THAT(page, Not(HasSubstr(reader))) << reader;
  }
}

}  // namespace
