#include "host/hxahost/system/output_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/file_text.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
namespace fs = std::filesystem;

std::size_t FileCount(const fs::path& folder) {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(OutputFile, IsThereWhenItIsFinished) {
  const TemporaryFolder folder;
  const fs::path path = folder.Path() / "out.json";
  OutputFile file(path);
  file.Stream() << "line\n";
  EXPECT_FALSE(fs::exists(path));
  file.Finish();
  EXPECT_EQ(FileText(path), "line\n");
  EXPECT_EQ(FileCount(folder.Path()), 1U);
}

TEST(OutputFile, LeavesTheOldFileUnlessItIsFinished) {
  const TemporaryFolder folder;
  const fs::path path = folder.Path() / "out.json";
  WriteFileText(path, "before");
  { OutputFile(path).Stream() << "half"; }
  EXPECT_EQ(FileText(path), "before");
  EXPECT_EQ(FileCount(folder.Path()), 1U);
}

// No process has that number; the other names do not belong to this file.
TEST(OutputFile, RemovesTheFilesOfKilledPrograms) {
  const TemporaryFolder folder;
  for (const char* const other :
       {"out.json.part", "out.json.x.part", "out.json.9999999990x.part", "other.999999999.part"}) {
    folder.Write(other, "");
  }
  folder.Write("out.json.999999999.part", "half");
  OutputFile file(folder.Path() / "out.json");
  EXPECT_FALSE(fs::exists(folder.Path() / "out.json.999999999.part"));
  file.Finish();
  EXPECT_EQ(FileCount(folder.Path()), 5U);
}

TEST(OutputFile, ReplacesTheOldFile) {
  const TemporaryFolder folder;
  const fs::path path = folder.Path() / "out.json";
  WriteFileText(path, "before, and longer");
  OutputFile file(path);
  file.Stream() << "after";
  file.Finish();
  EXPECT_EQ(FileText(path), "after");
}

TEST(OutputFile, RefusesAFolderAndAFileInAFolderThatIsMissing) {
  const TemporaryFolder folder;
  for (const fs::path& path : {folder.Path(), folder.Path() / "missing" / "out.json"}) {
    try {
      const OutputFile file(path);
      ADD_FAILURE() << path << " was taken";
    } catch (const ProgramError& error) {
      EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
    }
  }
  EXPECT_EQ(FileCount(folder.Path()), 0U);
}

}  // namespace
