#include "host/hxahost/system/plugin_library.h"

#include <stdexcept>

#include <dlfcn.h>

namespace hxahost {

void LoadPluginLibrary(const std::filesystem::path& file) {
  if (dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr) throw std::runtime_error(dlerror());
}

}  // namespace hxahost
