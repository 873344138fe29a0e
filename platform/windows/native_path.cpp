#include "platform/native_path.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include "platform/environment_answers.h"

namespace {

std::wstring ToWide(const std::string& utf8) {
  const int length = static_cast<int>(utf8.size());
  std::wstring wide(utf8.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), length, wide.data(), length)));
  return wide;
}

std::string ToUtf8(const std::wstring& wide) {
  const int length = static_cast<int>(wide.size());
  std::string utf8(wide.size() * 3, '\0');
  utf8.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(),
                                                           static_cast<int>(utf8.size()), nullptr, nullptr)));
  return utf8;
}

// In UTF-8, as folders for temporary files have names that the system's code page may lack.
bool NamesFileInItsPlace(std::string& path) {
  const std::wstring name(kRaidLogFileVariable, kRaidLogFileVariable + std::string_view(kRaidLogFileVariable).size());
  SetLastError(ERROR_SUCCESS);
  std::wstring wide(GetEnvironmentVariableW(name.c_str(), nullptr, 0), L'\0');
  if (GetLastError() == ERROR_ENVVAR_NOT_FOUND) return false;
  wide.resize(GetEnvironmentVariableW(name.c_str(), wide.data(), static_cast<DWORD>(wide.size())));
  path = ToUtf8(wide);
  return true;
}

// A file that is gone with its last handle lets itself be opened only by those who do not mind.
std::FILE* OpenShared(const std::wstring& path) {
  const auto file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(file), _O_RDONLY | _O_TEXT);
  if (descriptor == -1) CloseHandle(file);
  return descriptor == -1 ? nullptr : _fdopen(descriptor, "r");
}

}  // namespace

std::string NativePath(const std::string& windowsPath) {
  std::string inItsPlace;
  return AsksEnvironment() && NamesFileInItsPlace(inItsPlace) ? inItsPlace : windowsPath;
}

std::FILE* OpenNativeFile(const std::string& nativePath) {
  return AsksEnvironment() ? OpenShared(ToWide(nativePath)) : std::fopen(nativePath.c_str(), "r");
}

bool HaveStreamsTextMode() { return true; }
