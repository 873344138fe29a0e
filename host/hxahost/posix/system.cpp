#include "host/hxahost/system.h"

#include <stdexcept>

#include <dlfcn.h>
#include <unistd.h>

namespace hxahost {

std::vector<std::string> ProgramArguments(int count, char** arguments) {
  return count > 0 ? std::vector<std::string>(arguments + 1, arguments + count) : std::vector<std::string>();
}

std::filesystem::path ProgramFolder() { return std::filesystem::read_symlink("/proc/self/exe").parent_path(); }

unsigned long ProcessId() { return static_cast<unsigned long>(getpid()); }

bool StandardErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

void LoadPluginLibrary(const std::filesystem::path& file) {
  if (dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr) throw std::runtime_error(dlerror());
}

// Nothing stands between a program and its bytes here, and terminals show UTF-8.
StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

}  // namespace hxahost
