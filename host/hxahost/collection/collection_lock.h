#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

namespace hxahost {

// While it lives, no other program that takes it runs the tools of this folder: two utilities that talk to the same
// controllers at once can block each other. It ends with its program, however that ends. A folder that is missing or
// cannot be written is used without a lock.
class CollectionLock {
 public:
  // Waits until no other program has it; onWait is called once before a wait.
  CollectionLock(const std::filesystem::path& folder, const std::function<void()>& onWait);
  ~CollectionLock();
  CollectionLock(const CollectionLock&) = delete;
  CollectionLock& operator=(const CollectionLock&) = delete;

 private:
  std::intptr_t handle_ = -1;  // of the system; -1: used without
};

}  // namespace hxahost
