#include "platform/native_path.h"

#include <algorithm>

#include "platform/environment.h"
#include "platform/environment_answers.h"

std::string NativePath(const std::string& windowsPath) {
  if (auto inItsPlace = EnvironmentVariable(kRaidLogFileVariable)) return *inItsPlace;
  std::string path = windowsPath;
  std::ranges::replace(path, '\\', '/');
  return path;
}

std::FILE* OpenNativeFile(const std::string& nativePath) { return std::fopen(nativePath.c_str(), "r"); }

bool HaveStreamsTextMode() { return false; }
