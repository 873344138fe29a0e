// docs/classes.md contains the output of WriteSchemaMarkdown. To renew it, run this test with ZENX_RENEW_GOLDEN=1 in
// the environment, and read the difference before the commit.

#include "host/hxahost/schema/schema_markdown.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "tests/support/file_text.h"
#include "tests/support/same_lines.h"
#include "tests/support/source_folder.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using testing::HasSubstr;

std::string Page(std::span<const ClassDeclaration> classes) {
  std::ostringstream out;
  WriteSchemaMarkdown(out, classes, false);
  return out.str();
}

TEST(SchemaMarkdown, IsThePageOfTheDocumentation) {
  const std::filesystem::path page = SourceFile("docs/classes.md");
  const std::string written = Page(ExportedClasses());
  if (std::getenv("ZENX_RENEW_GOLDEN") != nullptr) WriteFileText(page, written);
  EXPECT_TRUE(SameText(FileText(page), written)) << "ZENX_RENEW_GOLDEN=1 renews it";
}

TEST(SchemaMarkdown, ShowsKeysTypesArraysReferencesAndEscapes) {
  static constexpr PropertyDeclaration kPlain[] = {
      {"Name",  kCIMString, false, true,  "", "a|b"    },
      {"Codes", kCIMUInt32, true,  false, "", "<b> * c"},
  };
  static constexpr PropertyDeclaration kEnds[] = {
      {"Dependent",  kCIMReference, false, true, "X_Plain", "d"},
      {"Antecedent", kCIMReference, false, true, "X_Other", "a"},
  };
  static constexpr ClassDeclaration kClasses[] = {
      {"X_Plain", "A plain class.", false, kPlain},
      {"X_Link",  "A link.",        true,  kEnds },
  };
  const std::string page = Page(kClasses);
  EXPECT_THAT(page, HasSubstr("\n| `CIM_Dependency` |  | Nothing. |\n"));
  EXPECT_THAT(page, HasSubstr("\n## X_Plain\n\nA plain class.\n\n"));
  EXPECT_THAT(page, HasSubstr("\n| `Name` (key) | string | a\\|b |  |\n| `Codes` | uint32[] | \\<b> \\* c |  |\n"));
  EXPECT_THAT(page, HasSubstr("\n| `Dependent` (key) | reference to `X_Plain` | d |  |\n"));
  EXPECT_THAT(page, HasSubstr("\n  X_Plain -- \"X_Link<br>Dependent to Antecedent\" --> X_Other\n"));
}

}  // namespace
