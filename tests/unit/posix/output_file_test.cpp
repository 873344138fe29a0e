#include "host/hxahost/system/output_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/file_text.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
namespace fs = std::filesystem;

TEST(OutputFilePosix, LeavesTheFilesOfRunningPrograms) {
  const TemporaryFolder folder;
  const fs::path theirs = folder.Write("out.json." + std::to_string(getppid()) + ".part", "half");
  OutputFile file(folder.Path() / "out.json");
  file.Finish();
  EXPECT_EQ(FileText(theirs), "half");
}

TEST(OutputFilePosix, WritesThroughALinkToItsTarget) {
  const TemporaryFolder folder;
  WriteFileText(folder.Path() / "file", "before");
  fs::create_symlink(folder.Path() / "file", folder.Path() / "link");
  OutputFile file(folder.Path() / "link");
  file.Stream() << "after";
  file.Finish();
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
  EXPECT_EQ(FileText(folder.Path() / "file"), "after");
}

TEST(OutputFilePosix, KeepsModeAndOwnerOfTheReplacedFile) {
  const TemporaryFolder folder;
  const fs::path path = folder.Write("file", "before");
  // Only root can change the owner of a file.
  const uid_t owner = geteuid() == 0 ? 1234 : geteuid();
  ASSERT_EQ(chown(path.c_str(), owner, getegid()), 0);
  ASSERT_EQ(chmod(path.c_str(), 0460), 0);
  OutputFile file(path);
  file.Stream() << "after";
  file.Finish();
  struct stat replaced {};
  ASSERT_EQ(stat(path.c_str(), &replaced), 0);
  EXPECT_EQ(replaced.st_size, 5);
  EXPECT_EQ(replaced.st_mode & 07777U, 0460U);
  EXPECT_EQ(replaced.st_uid, owner);
}

// A long collection would be in vain.
TEST(OutputFilePosix, RefusesANameThatIsTooLongBeforeAnythingIsWritten) {
  const TemporaryFolder folder;
  try {
    const OutputFile file(folder.Path() / std::string(250, 'n'));
    FAIL() << "it was taken";
  } catch (const ProgramError& error) {
    EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
    EXPECT_THAT(error.what(), testing::HasSubstr("(File name too long)"));
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

// A disk with room is not to blame.
TEST(OutputFilePosix, SaysWhyItCannotReplaceAFolder) {
  const TemporaryFolder folder;
  OutputFile file(folder.Path() / "name");
  file.Stream() << "text";
  folder.Write("name/file", "");
  try {
    file.Finish();
    FAIL() << "it was written";
  } catch (const ProgramError& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("(Is a directory)"));
    EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("room")));
  }
}

TEST(OutputFilePosix, WritesThroughALinkToAFileThatIsNotThereYet) {
  const TemporaryFolder folder;
  fs::create_directory(folder.Path() / "folder");
  fs::create_symlink("folder/file", folder.Path() / "link");
  OutputFile file(folder.Path() / "link");
  file.Stream() << "text";
  file.Finish();
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
  EXPECT_EQ(FileText(folder.Path() / "folder" / "file"), "text");
}

TEST(OutputFilePosix, IsNotSeenBeforeItIsFinished) {
  const TemporaryFolder folder;
  OutputFile file(folder.Path() / "file");
  file.Stream() << "text" << std::flush;
  EXPECT_TRUE(fs::is_empty(folder.Path()));
  file.Finish();
  EXPECT_EQ(FileText(folder.Path() / "file"), "text");
}

TEST(OutputFilePosix, WritesIntoADeviceAndDoesNotReplaceIt) {
  OutputFile file("/dev/null");
  file.Stream() << "text";
  file.Finish();
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(OutputFilePosix, ReportsAFullDevice) {
  OutputFile file("/dev/full");
  file.Stream() << "text";
  try {
    file.Finish();
    ADD_FAILURE() << "was written";
  } catch (const ProgramError& error) {
    EXPECT_EQ(error.Status(), ExitStatus::kQueryFailed);
  }
}

}  // namespace
