#include <array>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/windows/handle.h"
#include "host/hxacore/windows/wide_text.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

[[noreturn]] void ThrowNotRead(const std::string& path) {
  throw THXAException("\"" + path + "\" cannot be read: " + ErrorText(GetLastError()));
}

}  // namespace

// A log is read while its owner has it open, so everything is shared.
std::string CaptureFile(const std::string& path) {
  const UniqueHandle file =
      Owned(CreateFileW(ToWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) ThrowNotRead(path);
  std::string contents;
  std::array<char, std::size_t{64} << 10U> buffer;
  for (;;) {
    DWORD count = 0;
    if (!ReadFile(file.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr)) ThrowNotRead(path);
    if (count == 0) return contents;
    contents.append(buffer.data(), count);
  }
}

}  // namespace NKVRHXA20
