#include "host/hxahost/collection/collection_lock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace hxahost {

namespace {

// Whether it was taken. A signal may interrupt the wait.
bool Lock(int folder, int operation) {
  int result = 0;
  do {
    result = flock(folder, operation);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

}  // namespace

// The folder itself is locked: nothing is left behind in it. The tools do not inherit it.
CollectionLock::CollectionLock(const std::filesystem::path& folder, const std::function<void()>& onWait)
    : handle_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (handle_ < 0) return;
  const int descriptor = static_cast<int>(handle_);
  if (Lock(descriptor, LOCK_EX | LOCK_NB) || errno != EWOULDBLOCK) return;
  onWait();
  Lock(descriptor, LOCK_EX);
}

CollectionLock::~CollectionLock() {
  if (handle_ >= 0) close(static_cast<int>(handle_));
}

}  // namespace hxahost
