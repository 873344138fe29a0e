#pragma once

#include <chrono>
#include <filesystem>
#include <ostream>

#include "host/hxahost/system/folder_lock.h"

namespace hxahost {

// While it exists, no other program with such a lock runs the tools of this folder: two utilities that access the same
// controllers at once can block each other. A missing or read-only folder is used without a lock.
class CollectionLock {
 public:
  // Waits until no other program has the lock, and writes a line to err before it waits. Throws ProgramError if that
  // takes longer.
  CollectionLock(const std::filesystem::path& folder, std::chrono::seconds longestWait, std::ostream& err);

 private:
  FolderLock lock_;
};

}  // namespace hxahost
