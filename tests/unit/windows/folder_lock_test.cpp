#include "host/hxahost/system/folder_lock.h"

#include <gtest/gtest.h>

#include <thread>

#include <windows.h>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/temporary_folder.h"

namespace {

using hxahost::FolderLock;

// Opening a folder is denied, like opening a deleted file that another program still reads. Under Wine the name of such
// a file is free at once.
std::filesystem::path DenyLockFile(const TemporaryFolder& folder) {
  const std::filesystem::path denied = folder.Path() / "hxahost.lock";
  std::filesystem::create_directory(denied);
  return denied;
}

TEST(FolderLock, WaitsUntilTheLockFileOfAnEarlierProgramIsGone) {
  const TemporaryFolder folder;
  const std::filesystem::path denied = DenyLockFile(folder);
  std::thread end([&denied] {
    Sleep(500);
    std::filesystem::remove(denied);
  });
  FolderLock lock(folder.Path());
  EXPECT_TRUE(lock.Take());
  end.join();
  FolderLock other(folder.Path());
  EXPECT_FALSE(other.Take()) << "it went on without a lock";
}

TEST(FolderLock, ThrowsIfTheLockFileStaysDenied) {
  const TemporaryFolder folder;
  DenyLockFile(folder);
  FolderLock lock(folder.Path());
  EXPECT_THROW(lock.Take(), hxahost::ProgramError);
}

TEST(FolderLock, IsTakenWhileSomebodyReadsWhoHasIt) {
  const TemporaryFolder folder;
  FolderLock first(folder.Path());
  ASSERT_TRUE(first.Take());
  const HANDLE reader = CreateFileW((folder.Path() / "hxahost.lock").c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  EXPECT_NE(reader, INVALID_HANDLE_VALUE);
  FolderLock second(folder.Path());
  EXPECT_FALSE(second.Take());
  CloseHandle(reader);
}

}  // namespace
