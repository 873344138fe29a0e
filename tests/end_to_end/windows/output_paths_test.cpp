// Files that are not named by a drive, and names that mean no file.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::HasSubstr;
using Texts = std::vector<std::string>;

std::string SampleBundle() { return Utf8FromPath(SourceFile("tests/golden/one-controller.bundle")); }

ProgramResult Replay(const std::string& command, const Texts& further) {
  Texts arguments = {command, "--replay", SampleBundle()};
  arguments.insert(arguments.end(), further.begin(), further.end());
  return RunHxahost(arguments);
}

TEST(OutputPaths, MayHaveTheSystemsPrefix) {
  const TemporaryFolder folder;
  const std::string prefix = R"(\\?\)";
  const fs::path file = folder.Path() / "out.txt";
  const fs::path bundle = folder.Path() / "again.bundle";
  const ProgramResult written =
      Replay("query", {"--output", prefix + Utf8FromPath(file), "--record", prefix + Utf8FromPath(bundle), "--plugin",
                       prefix + Utf8FromPath(HxahostPath().parent_path() / "zenx.pi")});
  EXPECT_EQ(written.exitStatus, 0) << written.err;
  EXPECT_EQ(FileText(file), Replay("query", {}).out);
  EXPECT_EQ(RunHxahost({"query", "--replay", prefix + Utf8FromPath(bundle)}).out, FileText(file));
}

// A folder of the drive that has the name of the server has the share and the file.
TEST(OutputPaths, OfAServerThatIsNotThereAreNotOnTheDrive) {
  const std::string share = R"(\\)" + Utf8FromPath(HxahostPath().parent_path().relative_path()) + "\\";
  for (const char* const option : {"--output", "--record", "--log"}) {
    const ProgramResult result = Replay("query", {option, share + "lie.txt"});
    EXPECT_EQ(result.exitStatus, 2) << option;
    EXPECT_THAT(result.err, HasSubstr("name a file in a folder")) << option;
  }
  EXPECT_EQ(Replay("query", {"--plugin", share + "zenx.pi"}).exitStatus, 3);
}

TEST(OutputPaths, OfTheNullDeviceDiscardWhatIsWritten) {
  for (const char* const name : {"NUL", "nul", "NUL."}) {
    for (const char* const option : {"--output", "--record", "--log"}) {
      const ProgramResult result = Replay("query", {option, name});
      EXPECT_EQ(result.exitStatus, 0) << option << " " << name << ": " << result.err;
    }
  }
  EXPECT_EQ(Replay("query", {"--output", "NUL"}).out, "");
  EXPECT_EQ(Replay("health", {"--save-baseline", "NUL"}).exitStatus, Replay("health", {}).exitStatus);
}

TEST(OutputPaths, OfABlankAreRefusedInOneLine) {
  for (const char* const option : {"--output", "--record", "--log"}) {
    const ProgramResult result = Replay("query", {option, " "});
    EXPECT_EQ(result.exitStatus, 2) << option;
    EXPECT_THAT(result.err, HasSubstr("name a file in a folder")) << option;
  }
}

}  // namespace
