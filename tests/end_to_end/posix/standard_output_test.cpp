#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace {

TEST(StandardOutput, ThatIsAFileKeepsWhatIsInItIfItIsNamedAsTheOutput) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Write("shown", "before\n");
  const std::string bundle = SourceFile("tests/golden/one-controller.bundle").string();
  for (const std::string& name : {std::string("/dev/stdout"), file.string()}) {
    WriteFileText(file, "before\n");
    const ProgramResult result =
        RunFromShell("exec \"$0\" \"$@\" >> '" + file.string() + "'", {"bundle", "show", bundle, "--output", name});
    EXPECT_EQ(result.exitStatus, 0) << result.err;
    EXPECT_EQ(FileText(file), "before\n" + RunHxahost({"bundle", "show", bundle}).out) << name;
  }
}

}  // namespace
