#include "host/hxahost/system/this_program.h"

#include <cerrno>
#include <csignal>
#include <limits>
#include <system_error>

#include <unistd.h>

#include "host/hxahost/system/exit_status.h"

namespace hxahost {

std::vector<std::string> ProgramArguments(int count, char** arguments) {
  return count > 0 ? std::vector<std::string>(arguments + 1, arguments + count) : std::vector<std::string>();
}

std::filesystem::path ProgramFile() {
  std::error_code error;
  const std::filesystem::path file = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) return file;
  throw ProgramError(ExitStatus::kQueryFailed, "/proc, where the program finds its own folder, cannot be read (" +
                                                   error.message() + "): mount it.");
}
std::filesystem::path ProgramFolder() { return ProgramFile().parent_path(); }

unsigned long ProcessId() { return static_cast<unsigned long>(getpid()); }

// kill reads other numbers as groups of processes.
bool IsProcessRunning(unsigned long process) {
  if (process == 0 || process > static_cast<unsigned long>(std::numeric_limits<pid_t>::max())) return false;
  return kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

}  // namespace hxahost
