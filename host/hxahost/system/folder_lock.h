#pragma once

#include <cstdint>
#include <filesystem>
#include <utility>

namespace hxahost {

// Reserves a folder for one program at a time. The lock ends with the program, even if the program is killed.
class FolderLock {
 public:
  explicit FolderLock(std::filesystem::path folder) : folder_(std::move(folder)) {}
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // Returns false while another program has the lock. A missing or read-only folder is used without a lock.
  bool Take();

 private:
  std::filesystem::path folder_;
  std::intptr_t handle_ = -1;  // of the system; -1: not locked
};

}  // namespace hxahost
