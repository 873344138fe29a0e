#include "host/hxahost/system/output_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/file_text.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
namespace fs = std::filesystem;

TEST(OutputFilePosix, WritesThroughALinkToTheFileBehindIt) {
  const TemporaryFolder folder;
  WriteFileText(folder.Path() / "file", "before");
  fs::create_symlink(folder.Path() / "file", folder.Path() / "link");
  OutputFile file(folder.Path() / "link");
  file.Stream() << "after";
  file.Finish();
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
  EXPECT_EQ(FileText(folder.Path() / "file"), "after");
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
