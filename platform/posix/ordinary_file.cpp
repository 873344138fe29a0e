#include "platform/ordinary_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

OpenedPath Failed() { return {nullptr, std::error_code(errno, std::system_category())}; }

}  // namespace

OpenedPath OpenPath(const std::filesystem::path& path, const char* mode) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (descriptor < 0) return Failed();
  OpenedPath opened = {UniqueStream(fdopen(descriptor, mode)), {}};
  struct stat file {};
  if (!opened.stream) close(descriptor);
  if (!opened.stream || fstat(descriptor, &file) != 0) return Failed();
  opened.isOrdinary = S_ISREG(file.st_mode);
  opened.size = static_cast<std::uint64_t>(file.st_size);
  return opened;
}
