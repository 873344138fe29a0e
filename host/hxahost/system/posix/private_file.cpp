#include "host/hxahost/system/private_file.h"

#include <cerrno>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "host/hxahost/system/exit_status.h"

namespace hxahost {

// It has no name but that of its descriptor, so there is nothing to clean up.
PrivateFile::PrivateFile(std::string_view bytes) : handle_(memfd_create("hxahost", MFD_CLOEXEC)) {
  const int file = static_cast<int>(handle_);
  while (file >= 0 && !bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) break;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  if (file < 0 || !bytes.empty()) {
    if (file >= 0) close(file);
    throw ProgramError(ExitStatus::kQueryFailed, "There is no memory for the log of the bundle: end other programs.");
  }
  path_ = "/proc/self/fd/" + std::to_string(file);
}

PrivateFile::~PrivateFile() { close(static_cast<int>(handle_)); }

}  // namespace hxahost
