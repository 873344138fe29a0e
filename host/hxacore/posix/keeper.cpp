#include "host/hxacore/posix/keeper.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace NKVRHXA20 {

int endingSignal = SIGKILL;

namespace {

constexpr int kHost = 3;
constexpr long kLongestPause = 1'000'000'000;  // nanoseconds

void Report(KeeperReport report) {
  while (send(kHost, &report, sizeof report, MSG_NOSIGNAL) < 0 && errno == EINTR) {
  }
}

int AboveStandardFiles(int file) { return file > STDERR_FILENO ? file : fcntl(file, F_DUPFD, STDERR_FILENO + 1); }

// The null device as standard input, the output twice, and the socket. No other file of the host may stay open here,
// such as a lock or the end of a pipe that a process waits for.
void TakeFiles(int output, int host) {
  output = AboveStandardFiles(output);
  host = AboveStandardFiles(host);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  close(STDIN_FILENO);
  open("/dev/null", O_RDONLY);  // the lowest number is free
  if (host != kHost) dup2(host, kHost);
  closefrom(kHost + 1);
}

// Starts a group of its own and resets signals, independent of those that the host blocks or ignores. If the keeper is
// killed, the system ends at least the program.
[[noreturn]] void BecomeProgram(const KeptProgram& program, pid_t keeper) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != keeper) _exit(127);
  setpgid(0, 0);
  fcntl(kHost, F_SETFD, FD_CLOEXEC);
  for (int signal = 1; signal < NSIG; ++signal) std::signal(signal, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  execve(program.path, program.arguments, program.environment);
  Report({KeeperReport::kNotStarted, errno});
  _exit(127);
}

// Collects children that have ended. If the program is one of them, its number becomes 0, as another process may get
// the number. False: none is left.
bool LetGo(pid_t& program) {
  int status = 0;
  for (pid_t ended = waitpid(-1, &status, WNOHANG); ended != 0; ended = waitpid(-1, &status, WNOHANG)) {
    if (ended < 0) return false;
    if (ended != program) continue;
    Report({KeeperReport::kEnded, status});
    program = 0;
  }
  return true;
}

// Waits until a child ends, the host requests the end of all, or the time is over (null: never). Returns the request.
bool WaitForChange(int host, const timespec* time) {
  sigset_t noChildEnds;
  sigfillset(&noChildEnds);
  sigdelset(&noChildEnds, SIGCHLD);
  pollfd wait{host, POLLIN, 0};
  return ppoll(&wait, 1, time, &noChildEnds) > 0;
}

// The numbers of this process's children cannot have been reused: only this process collects them. Processes that they
// started become children when they have ended. On a kernel without the list, the program's group is ended.
void EndChildren(pid_t program) {
  if (program != 0) kill(-program, endingSignal);
  std::array<char, 4096> text;  // "417 418 ": if it is too long, the others follow in the next call
  const int list = open("/proc/thread-self/children", O_RDONLY | O_CLOEXEC);
  const ssize_t size = read(list, text.data(), text.size());
  close(list);
  const char* const end = text.data() + std::max<ssize_t>(size, 0);
  for (const char* next = text.data(); next != end;) {
    const char* const blank = std::find(next, end, ' ');
    if (blank == end) return;  // the last number may be cut off
    pid_t child = 0;
    if (std::from_chars(next, blank, child).ec == std::errc() && child > 0) kill(child, endingSignal);
    next = blank + 1;
  }
}

// As long as a process is left, the program's file is locked, so no host runs it again. The system cannot end a process
// that waits for a broken controller before the controller answers.
void EndAll(const KeptProgram& program, pid_t process) {
  const int file = open(program.path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  timespec pause{0, 1'000'000};
  while (LetGo(process)) {
    flock(file, LOCK_EX | LOCK_NB);
    EndChildren(process);
    WaitForChange(-1, &pause);
    pause.tv_nsec = std::min(pause.tv_nsec * 2, kLongestPause - 1);
  }
}

}  // namespace

void Keep(const KeptProgram& program) {
  setsid();  // no terminal sends it signals
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  prctl(PR_SET_NAME, "zenx-keeper");
  TakeFiles(program.output, program.host);
  std::signal(SIGCHLD, [](int) {});  // blocked except in WaitForChange
  const pid_t keeper = getpid();
  // The child uses this process's memory until its program replaces it: a copy takes long if the host is large.
  pid_t process = vfork();
  if (process == 0) BecomeProgram(program, keeper);
  Report(process > 0 ? KeeperReport{KeeperReport::kStarted, process} : KeeperReport{KeeperReport::kNotStarted, errno});
  for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) close(file);
  while (LetGo(process)) {
    if (WaitForChange(kHost, nullptr)) EndAll(program, process);
  }
  _exit(0);
}

}  // namespace NKVRHXA20
