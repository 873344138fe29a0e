#include <atomic>
#include <csignal>
#include <cstring>
#include <mutex>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>

#include "host/hxacore/posix/child_process.h"
#include "host/hxacore/spawn_failure.h"

namespace NKVRHXA20 {

namespace {

std::string ErrorText(int code) { return std::generic_category().message(code); }

// A name that no other run has, also not that of a host that this one has started or was started by.
std::string NewMark() {
  static std::atomic<unsigned> runs = 0;
  return "ZENX_RUN_" + std::to_string(getpid()) + "_" + std::to_string(++runs) + "=1";
}

bool ChoosesLocale(std::string_view variable) {
  return variable.starts_with("LC_") || variable.starts_with("LANG=") || variable.starts_with("LANGUAGE=");
}

// The host's environment with the C locale, so that the tools answer in the words that the parsers know.
std::vector<char*> ChildEnvironment(std::string& mark) {
  static char cLocale[] = "LC_ALL=C";
  std::vector<char*> variables;
  for (char** variable = environ; variable && *variable; ++variable) {
    if (!ChoosesLocale(*variable)) variables.push_back(*variable);
  }
  variables.insert(variables.end(), {cLocale, mark.data(), nullptr});
  return variables;
}

// The callee takes the texts as it finds them, without const, and does not write to them.
std::vector<char*> ArgumentPointers(const std::string& path, const std::vector<std::string>& arguments) {
  std::vector<char*> pointers{const_cast<char*>(path.c_str())};
  for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

// What becomes of the files. The null device comes last, because the pipe may have any number where the host itself
// was started without standard files. Nothing else is passed on: a file that the host holds, or a lock on it, must not
// live on in something that a tool leaves behind.
class TFileActions {
 public:
  explicit TFileActions(int output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions_, output, STDERR_FILENO);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
  }
  ~TFileActions() { posix_spawn_file_actions_destroy(&actions_); }
  TFileActions(const TFileActions&) = delete;
  TFileActions& operator=(const TFileActions&) = delete;

  const posix_spawn_file_actions_t* Get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

// A group of its own, and signals as at the start of a session: what the host blocks or ignores is its own business.
class TSpawnAttributes {
 public:
  TSpawnAttributes() {
    sigset_t signals;
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setpgroup(&attributes_, 0);
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
  }
  ~TSpawnAttributes() { posix_spawnattr_destroy(&attributes_); }
  TSpawnAttributes(const TSpawnAttributes&) = delete;
  TSpawnAttributes& operator=(const TSpawnAttributes&) = delete;

  const posix_spawnattr_t* Get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

}  // namespace

ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments) {
  // One at a time: what another thread starts has the end that writes, too, until it becomes its program. A run whose
  // program has ended by then would take it for something that was left behind, and end it.
  static std::mutex starting;
  const std::lock_guard alone(starting);
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) ThrowNotStarted(path, ErrorText(errno));
  ChildProcess child;
  child.output = TDescriptor(ends[0]);
  const TDescriptor write(ends[1]);

  child.mark = NewMark();
  const auto environment = ChildEnvironment(child.mark);
  const auto argumentPointers = ArgumentPointers(path, arguments);
  const TFileActions actions(write.Get());
  const TSpawnAttributes attributes;
  const int failure = posix_spawn(&child.pid, path.c_str(), actions.Get(), attributes.Get(), argumentPointers.data(),
                                  environment.data());
  if (failure != 0) ThrowNotStarted(path, ErrorText(failure));
  child.end = TDescriptor(static_cast<int>(syscall(SYS_pidfd_open, child.pid, 0)));
  return child;
}

}  // namespace NKVRHXA20
