#include "host/hxahost/system/folder_lock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace hxahost {

// Locks the folder itself, so no file remains in it. The tools do not inherit the lock.
bool FolderLock::Take() {
  if (handle_ < 0) handle_ = open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return handle_ < 0 || flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

FolderLock::~FolderLock() {
  if (handle_ >= 0) close(static_cast<int>(handle_));
}

}  // namespace hxahost
