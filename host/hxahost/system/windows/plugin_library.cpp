#include "host/hxahost/system/plugin_library.h"

#include <array>
#include <stdexcept>
#include <string>

#include <windows.h>

#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

std::string SystemMessage(DWORD error) {
  std::array<wchar_t, 512> text{};
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                     nullptr, error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  return Printable(Utf8FromPath(std::wstring(text.data(), length))) + " (error " + std::to_string(error) + ")";
}

}  // namespace

// The libraries of the plug-in are beside it and in the system's folders. The working directory may contain any file,
// so it is not searched, neither now nor for a library that one of these loads later.
void LoadPluginLibrary(const std::filesystem::path& file) {
  SetDllDirectoryW(L"");
  SetErrorMode(SEM_FAILCRITICALERRORS);  // no message box that waits for a click
  const auto library =
      LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
  if (library == nullptr) throw std::runtime_error(SystemMessage(GetLastError()));
}

}  // namespace hxahost
