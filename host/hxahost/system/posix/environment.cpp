#include "host/hxahost/system/environment.h"

#include <cstdlib>

namespace hxahost {

void PutVariable(const char* name, const std::optional<std::string>& bytes) {
  bytes ? setenv(name, bytes->c_str(), 1) : unsetenv(name);
}

void PutVariable(const char* name, const std::filesystem::path& path) { setenv(name, path.c_str(), 1); }

}  // namespace hxahost
