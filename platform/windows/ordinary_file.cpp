#include "platform/ordinary_file.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <windows.h>

#include <fcntl.h>
#include <io.h>

namespace {

OpenedPath Failed() { return {nullptr, std::error_code(static_cast<int>(GetLastError()), std::system_category())}; }

// The stream then owns the handle.
UniqueStream StreamOf(HANDLE handle, const char* mode) {
  const int reading = std::strchr(mode, 'b') != nullptr ? _O_RDONLY | _O_BINARY : _O_RDONLY | _O_TEXT;
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), reading);
  std::FILE* const stream = descriptor < 0 ? nullptr : _fdopen(descriptor, mode);
  if (stream != nullptr) return UniqueStream(stream);
  descriptor < 0 ? static_cast<void>(CloseHandle(handle)) : static_cast<void>(_close(descriptor));
  return nullptr;
}

}  // namespace

// A log is read while its owner has it open, so everything is shared. Whoever made a pipe of this name must not act
// with the rights of whoever opens it.
OpenedPath OpenPath(const std::filesystem::path& path, const char* mode) {
  const HANDLE handle =
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return Failed();
  OpenedPath opened;
  // Whole disks count as disks, too, but have no information of a file.
  BY_HANDLE_FILE_INFORMATION file{};
  opened.isOrdinary = GetFileType(handle) == FILE_TYPE_DISK && GetFileInformationByHandle(handle, &file) != 0;
  opened.size = std::uint64_t{file.nFileSizeHigh} << 32U | file.nFileSizeLow;
  opened.stream = StreamOf(handle, mode);
  if (!opened.stream) opened.error = std::make_error_code(static_cast<std::errc>(errno));
  return opened;
}
