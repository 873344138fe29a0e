#pragma once

#include <cstdint>
#include <filesystem>
#include <utility>

namespace hxahost {

// Keeps a folder for one program at a time. It ends with its program, however that ends.
class FolderLock {
 public:
  explicit FolderLock(std::filesystem::path folder) : folder_(std::move(folder)) {}
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // False while another program has it. A folder that is missing or cannot be written is had without a lock.
  bool Take();

 private:
  std::filesystem::path folder_;
  std::intptr_t handle_ = -1;  // of the system; -1: none
};

}  // namespace hxahost
