#include "host/hxahost/system/this_program.h"

#include <unistd.h>

namespace hxahost {

std::vector<std::string> ProgramArguments(int count, char** arguments) {
  return count > 0 ? std::vector<std::string>(arguments + 1, arguments + count) : std::vector<std::string>();
}

std::filesystem::path ProgramFile() { return std::filesystem::read_symlink("/proc/self/exe"); }
std::filesystem::path ProgramFolder() { return ProgramFile().parent_path(); }

unsigned long ProcessId() { return static_cast<unsigned long>(getpid()); }

}  // namespace hxahost
