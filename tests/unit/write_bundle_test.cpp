#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/file_text.h"
#include "tests/support/sample_bundle.h"
#include "tests/support/source_folder.h"

namespace {

using namespace hxahost;

// The example in the document, the block below the comment "bundle".
std::string DocumentedExample() {
  const std::string page = FileText(SourceFile("docs/bundles.md"));
  constexpr std::string_view kFence = "<!-- bundle -->\n```text\n";
  const std::size_t begin = page.find(kFence) + kFence.size();
  return page.substr(begin, page.find("```", begin) - begin);
}

TEST(WriteBundle, WritesTheExampleOfTheDescription) { EXPECT_EQ(WriteBundle(SampleBundle()), DocumentedExample()); }

TEST(WriteBundle, WritesAbsentValuesAsNone) {
  const std::string text = WriteBundle({});
  EXPECT_NE(text.find("\nos-type: none\nos-version: none\nraid-log-dir: none\nitems: 0\n\nend of bundle"), text.npos)
      << text;
}

}  // namespace
