#include "host/hxahost/system/system.h"

#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <dlfcn.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "host/hxahost/system/exit_status.h"

namespace hxahost {

std::vector<std::string> ProgramArguments(int count, char** arguments) {
  return count > 0 ? std::vector<std::string>(arguments + 1, arguments + count) : std::vector<std::string>();
}

std::filesystem::path ProgramFile() { return std::filesystem::read_symlink("/proc/self/exe"); }
std::filesystem::path ProgramFolder() { return ProgramFile().parent_path(); }

unsigned long ProcessId() { return static_cast<unsigned long>(getpid()); }

bool StandardErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }
bool StandardOutputIsTerminal() { return isatty(STDOUT_FILENO) == 1; }

std::optional<std::size_t> TerminalWidth(TerminalStream stream) {
  winsize size{};
  const int descriptor = stream == TerminalStream::kOutput ? STDOUT_FILENO : STDERR_FILENO;
  if (ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return std::nullopt;
  return size.ws_col;
}

// The first of the three that is set decides, also where the system has no locale of that name.
bool TerminalShowsUtf8() {
  for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    const std::string locale(value);
    return locale.find("UTF-8") != std::string::npos || locale.find("utf8") != std::string::npos;
  }
  return false;
}

bool TerminalTakesColours() {
  const char* const terminal = std::getenv("TERM");
  return terminal != nullptr && std::string(terminal) != "dumb";
}

void PutVariable(const char* name, const std::optional<std::string>& bytes) {
  bytes ? setenv(name, bytes->c_str(), 1) : unsetenv(name);
}

void PutVariable(const char* name, const std::filesystem::path& path) { setenv(name, path.c_str(), 1); }

// It has no name but that of its descriptor, so there is nothing to clean up.
PrivateFile::PrivateFile(std::string_view bytes) : handle_(memfd_create("hxahost", MFD_CLOEXEC)) {
  const int file = static_cast<int>(handle_);
  while (file >= 0 && !bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) break;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  if (file < 0 || !bytes.empty()) {
    if (file >= 0) close(file);
    throw ProgramError(ExitStatus::kQueryFailed, "There is no memory for the log of the bundle: end other programs.");
  }
  path_ = "/proc/self/fd/" + std::to_string(file);
}

PrivateFile::~PrivateFile() { close(static_cast<int>(handle_)); }

void LoadPluginLibrary(const std::filesystem::path& file) {
  if (dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr) throw std::runtime_error(dlerror());
}

// Nothing stands between a program and its bytes here, and terminals show UTF-8.
StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

}  // namespace hxahost
