#include "platform/native_path.h"

#include <windows.h>

std::string NativePath(const std::string& windowsPath) { return windowsPath; }

// By the system's code page, as its streams do.
std::filesystem::path FileAt(const std::string& nativePath) {
  const int length = static_cast<int>(nativePath.size());
  std::wstring wide(nativePath.size(), L'\0');  // no code page makes more characters than it has bytes
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, nativePath.data(), length, wide.data(), length)));
  return wide;
}

bool HaveStreamsTextMode() { return true; }
