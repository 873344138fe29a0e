#include "host/hxahost/system/interruption.h"

#include <csignal>
#include <string_view>
#include <thread>

#include <poll.h>
#include <unistd.h>

#include "host/hxahost/system/exit_status.h"

namespace hxahost {

namespace {

struct Request {
  int signal;
  ExitStatus status;
  std::string_view line;
};

constexpr Request kRequests[] = {
    {SIGINT,  ExitStatus::kInterrupted, "hxahost: Interrupted: what ran was ended, and no file was replaced.\n"},
    {SIGTERM, ExitStatus::kTerminated,  "hxahost: Terminated: what ran was ended, and no file was replaced.\n" },
    {SIGHUP,  ExitStatus::kTerminated,  "hxahost: Hung up: what ran was ended, and no file was replaced.\n"    },
};

// Writes only if it does not block, as the program must end even if nobody reads its standard error.
void Say(std::string_view line) {
  pollfd error{STDERR_FILENO, POLLOUT, 0};
  if (poll(&error, 1, 0) > 0) [[maybe_unused]]
    const auto written = write(STDERR_FILENO, line.data(), line.size());
}

[[noreturn]] void WaitForRequest(sigset_t signals, void (*cleanUp)()) {
  int signal = 0;
  while (sigwait(&signals, &signal) != 0) {
  }
  cleanUp();
  for (const Request& request : kRequests) {
    if (request.signal != signal) continue;
    Say(request.line);
    _exit(static_cast<int>(request.status));
  }
  _exit(static_cast<int>(ExitStatus::kTerminated));
}

bool IsIgnored(int signal) {
  struct sigaction action {};
  return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

void EndWhenAsked(void (*cleanUp)()) {
  sigset_t signals;
  sigemptyset(&signals);
  for (const Request& request : kRequests) {
    if (!IsIgnored(request.signal)) sigaddset(&signals, request.signal);
  }
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  std::thread(WaitForRequest, signals, cleanUp).detach();
}

}  // namespace hxahost
