#include "tests/support/test_system.h"

#include <cerrno>
#include <cstdlib>
#include <iterator>

#include <dlfcn.h>
#include <malloc.h>
#include <sys/wait.h>

#include "host/hxacore/whole_file.h"

namespace fs = std::filesystem;

fs::path ProgramFolder() { return fs::read_symlink("/proc/self/exe").parent_path(); }

// "417 (name) S ...": the state follows the last parenthesis.
bool IsRunning(unsigned long process) {
  const std::string status = NKVRHXA20::ReadWholeFile("/proc/" + std::to_string(process) + "/stat").bytes;
  const auto nameEnd = status.rfind(") ");
  return nameEnd != std::string::npos && status[nameEnd + 2] != 'Z' && status[nameEnd + 2] != 'X';
}

std::vector<unsigned long> ProcessesOf(const fs::path& programs) {
  std::vector<unsigned long> processes;
  for (const auto& entry : fs::directory_iterator("/proc")) {
    std::error_code gone;
    const std::string program = fs::read_symlink(entry.path() / "exe", gone).string();
    const unsigned long process = std::strtoul(entry.path().filename().c_str(), nullptr, 10);
    if (process != 0 && program.starts_with(programs.string()) && IsRunning(process)) processes.push_back(process);
  }
  return processes;
}

std::size_t OpenHandleCount() {
  return static_cast<std::size_t>(std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

bool HasChildren() {
  siginfo_t child{};
  return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
}

void SetVariable(const std::string& name, const std::string& value) { setenv(name.c_str(), value.c_str(), 1); }

void LetOthersWrite(const fs::path& path) { fs::permissions(path, fs::perms::others_write, fs::perm_options::add); }

// The sanitizers delay freeing memory, so only they know its size; without them the function does not exist.
std::size_t MemoryInUse() {
  void* const allocated = dlsym(RTLD_DEFAULT, "__sanitizer_get_current_allocated_bytes");
  return allocated ? reinterpret_cast<std::size_t (*)()>(allocated)() : mallinfo2().uordblks;
}

bool UnloadLibrary(const fs::path& file) {
  constexpr int kFlags = RTLD_LAZY | RTLD_NOLOAD;
  void* const library = dlopen(file.c_str(), kFlags);  // one more reference
  dlclose(library);
  dlclose(library);
  return dlopen(file.c_str(), kFlags) == nullptr;
}

const int kManyRuns = 1000;

const std::size_t kCasesForOneRun = 29;
