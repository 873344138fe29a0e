#include <cerrno>
#include <csignal>
#include <string_view>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>

#include "host/hxacore/posix/child_process.h"
#include "host/hxacore/posix/keeper.h"
#include "host/hxacore/spawn_failure.h"

namespace NKVRHXA20 {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

[[noreturn]] void ThrowLastError(const std::string& path) {
  ThrowNotStarted(path, std::generic_category().message(errno));
}

bool ChoosesLocale(std::string_view variable) {
  return variable.starts_with("LC_") || variable.starts_with("LANG=") || variable.starts_with("LANGUAGE=");
}

// The host's environment with the C locale, so that the tools print the words that the parsers expect.
std::vector<char*> ChildEnvironment() {
  static char cLocale[] = "LC_ALL=C";
  std::vector<char*> variables;
  for (char** variable = environ; variable && *variable; ++variable) {
    if (!ChoosesLocale(*variable)) variables.push_back(*variable);
  }
  variables.insert(variables.end(), {cLocale, nullptr});
  return variables;
}

// The called function takes the texts without const, but does not write to them.
std::vector<char*> ArgumentPointers(const std::string& path, const std::vector<std::string>& arguments) {
  std::vector<char*> pointers{const_cast<char*>(path.c_str())};
  for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

// A keeper that could not end every process of an earlier run has locked the file. The keeper of a host that was just
// killed may still be ending them.
void WaitForEarlierRuns(const std::string& path) {
  constexpr milliseconds kWait{500};
  constexpr milliseconds kAskAgain{5};
  const TDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.Get() < 0) return;  // starting it will report the reason
  const auto giveUp = steady_clock::now() + kWait;
  while (flock(file.Get(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (steady_clock::now() >= giveUp) ThrowNotStarted(path, "an earlier run of it cannot be ended and goes on");
    std::this_thread::sleep_for(kAskAgain);
  }
}

// Forks the keeper, which receives no signal of the host.
pid_t StartKeeper(const KeptProgram& program) {
  sigset_t all;
  sigset_t before;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before);
  const pid_t keeper = fork();
  if (keeper == 0) Keep(program);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return keeper;
}

}  // namespace

ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments) {
  WaitForEarlierRuns(path);
  int pipeEnds[2];
  if (pipe2(pipeEnds, O_CLOEXEC) != 0) ThrowLastError(path);
  ChildProcess child;
  child.output = TDescriptor(pipeEnds[0]);
  const TDescriptor write(pipeEnds[1]);
  int socketEnds[2];
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, socketEnds) != 0) ThrowLastError(path);
  child.reports = TRunSocket(socketEnds[0]);
  const TDescriptor host(socketEnds[1]);

  const auto argumentPointers = ArgumentPointers(path, arguments);
  const auto environment = ChildEnvironment();
  child.keeper = StartKeeper({path.c_str(), argumentPointers.data(), environment.data(), write.Get(), host.Get()});
  if (child.keeper < 0) ThrowLastError(path);
  return child;
}

}  // namespace NKVRHXA20
