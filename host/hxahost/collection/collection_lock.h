#pragma once

#include <filesystem>
#include <ostream>

#include "host/hxahost/system/folder_lock.h"

namespace hxahost {

// While it lives, no other program that takes it runs the tools of this folder: two utilities that talk to the same
// controllers at once can block each other. A folder that is missing or cannot be written is used without a lock.
class CollectionLock {
 public:
  // Waits until no other program has it, and says so to err before it waits.
  CollectionLock(const std::filesystem::path& folder, std::ostream& err);

 private:
  FolderLock lock_;
};

}  // namespace hxahost
