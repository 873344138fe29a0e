#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>

#include "host/hxahost/system/folder_lock.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

// A machine with tools that cannot be run: enough to check who may change them.
class WritableTools : public testing::Test {
 protected:
  WritableTools() {
    for (const char* const file : {"arcconf.exe", "qcmdrun.exe", "storelib.dll"}) folder_.Write(Zenx() / file, "");
  }

  fs::path Zenx() const { return folder_.Path() / "zenx"; }

  // Standard error before the line that no tool answered.
  std::string Warning() const {
    const ProgramResult result =
        RunHxahost({"query", "--directory", hxahost::Utf8FromPath(folder_.Path()), "--format", "json"});
    EXPECT_EQ(result.exitStatus, 4);
    EXPECT_EQ(result.out.front(), '{') << "the warning is not part of the result";
    return result.err.substr(0, result.err.find("hxahost: No tool answered"));
  }

 private:
  TemporaryFolder folder_;
};

void ExpectOneLineAbout(const std::string& what, const std::string& err) {
  EXPECT_EQ(std::ranges::count(err, '\n'), 1) << err;
  EXPECT_THAT(err, AllOf(testing::StartsWith("hxahost: others may write to "), HasSubstr(what),
                         HasSubstr("let only administrators write there")));
}

TEST_F(WritableTools, AreNotReportedIfOthersCannotWrite) { EXPECT_EQ(Warning(), ""); }

TEST_F(WritableTools, AreNamedInOneLineWhenAnybodyMayChangeThem) {
  LetOthersWrite(Zenx() / "qcmdrun.exe");
  ExpectOneLineAbout("qcmdrun.exe, and what they put there", Warning());
  LetOthersWrite(Zenx() / "storelib.dll");
  ExpectOneLineAbout("qcmdrun.exe and 1 more, and", Warning());
}

TEST_F(WritableTools, IncludeTheirFolderAndTheOneItLiesIn) {
  LetOthersWrite(Zenx());
  ExpectOneLineAbout("zenx, and", Warning());
  LetOthersWrite(Zenx().parent_path());
  ExpectOneLineAbout(hxahost::Utf8FromPath(Zenx().parent_path().filename()) + " and 1 more", Warning());
}

TEST_F(WritableTools, IncludeTheFoldersInTheirFolder) {
  fs::create_directories(Zenx() / "lib" / "plugins");
  EXPECT_EQ(Warning(), "");
  LetOthersWrite(Zenx() / "lib" / "plugins");
  ExpectOneLineAbout("plugins, and", Warning());
}

TEST_F(WritableTools, AreLookedForWhenNoOtherProgramCollectsAnyMore) {
  std::optional<hxahost::FolderLock> other(Zenx());
  ASSERT_TRUE(other->Take());
  RunningProgram hxahost(HxahostPath(), {"query", "--directory", hxahost::Utf8FromPath(Zenx().parent_path())});
  ASSERT_TRUE(hxahost.SaysOnStandardError("waiting at most "));
  LetOthersWrite(Zenx() / "qcmdrun.exe");
  other.reset();
  EXPECT_THAT(hxahost.Wait().err, HasSubstr("others may write to "));
}

}  // namespace
