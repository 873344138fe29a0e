#include "host/hxahost/system/environment.h"

#include <windows.h>

namespace hxahost {

void PutVariable(const char* name, const std::optional<std::string>& bytes) {
  SetEnvironmentVariableA(name, bytes ? bytes->c_str() : nullptr);
}

void PutVariable(const char* name, const std::filesystem::path& path) {
  SetEnvironmentVariableW(std::filesystem::path(name).c_str(), path.c_str());
}

}  // namespace hxahost
