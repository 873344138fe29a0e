#pragma once

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace hxahost {

// The process that has the lock of a folder.
struct LockHolder {
  unsigned long process = 0;
  std::string program;    // its name; "" if unknown
  std::time_t since = 0;  // when it took the lock, on Linux when it was started; 0 if unknown
};

// Reserves a folder for one program at a time. The lock ends with the program, even if the program is killed.
class FolderLock {
 public:
  explicit FolderLock(std::filesystem::path folder) : folder_(std::move(folder)) {}
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // Returns false while another program has the lock. A missing or read-only folder is used without a lock. Throws
  // ProgramError if the lock file of an ended program remains and cannot be opened.
  bool Take();

  // The process that has the lock, after Take() returned false. Empty if the lock is free again or the system does not
  // tell.
  std::optional<LockHolder> Holder() const;

 private:
  std::filesystem::path folder_;
  std::intptr_t handle_ = -1;  // of the system; -1: not locked
};

}  // namespace hxahost
