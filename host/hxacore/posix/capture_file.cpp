#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/posix/descriptor.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

[[noreturn]] void ThrowNotRead(const std::string& path) {
  throw THXAException("\"" + path + "\" cannot be read: " + std::generic_category().message(errno));
}

}  // namespace

// Up to where reading finds the end, not up to the size: a log may grow meanwhile, and files of the system have none.
std::string CaptureFile(const std::string& path) {
  const TDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Get() < 0) ThrowNotRead(path);
  std::string contents;
  std::array<char, std::size_t{64} << 10U> buffer;
  for (;;) {
    const ssize_t count = read(file.Get(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) ThrowNotRead(path);
    if (count == 0) return contents;
    contents.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace NKVRHXA20
