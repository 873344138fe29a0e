#include "platform/native_path.h"

#include <algorithm>

std::string NativePath(const std::string& windowsPath) {
  std::string path = windowsPath;
  std::ranges::replace(path, '\\', '/');
  return path;
}

std::filesystem::path FileAt(const std::string& nativePath) { return nativePath; }

bool HaveStreamsTextMode() { return false; }
