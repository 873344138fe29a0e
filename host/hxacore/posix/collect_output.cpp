#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>

#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/posix/child_process.h"
#include "host/hxacore/posix/keeper.h"

namespace NKVRHXA20 {

namespace {

using std::chrono::milliseconds;

// Rounded up: a wait of 0 would turn the last millisecond into a busy loop.
milliseconds Remaining(Deadline deadline) {
  const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
  return std::clamp(left, milliseconds(0), milliseconds(std::numeric_limits<int>::max()));
}

// Reads once, waiting if nothing is there. False: the pipe is at its end.
bool ReadSome(int descriptor, std::string& output, std::size_t atMost) {
  std::array<char, std::size_t{64} << 10U> buffer;
  const ssize_t count = read(descriptor, buffer.data(), std::min(buffer.size(), atMost));
  if (count < 0) return errno == EINTR;
  output.append(buffer.data(), static_cast<std::size_t>(count));
  return count > 0;
}

bool IsTooMuch(const std::string& output) { return output.size() > kOutputLimit; }

// Reads one report of the keeper, or its end. A program that was not started counts as ended.
void ReadReport(ChildProcess& child) {
  KeeperReport report{};
  const ssize_t size = recv(child.reports.Get(), &report, sizeof report, 0);
  if (size < 0 && errno == EINTR) return;
  if (size != sizeof report) {
    child.isKept = false;
  } else if (report.kind == KeeperReport::kStarted) {
    child.process = report.value;
  } else if (report.kind == KeeperReport::kNotStarted) {
    child.startFailure = report.value;
  } else {
    child.waitStatus = report.value;
  }
}

// The program has ended: all of its output is in the pipe. Only that is read, because processes that it started may
// write for ever.
void TakeTheRest(int descriptor, std::string& output) {
  int waiting = 0;
  ioctl(descriptor, FIONREAD, &waiting);
  const std::size_t whole = output.size() + static_cast<std::size_t>(waiting);
  while (output.size() < whole && ReadSome(descriptor, output, whole - output.size())) {
  }
}

}  // namespace

OutputEnd CollectOutput(ChildProcess& child, Deadline deadline, std::string& output) {
  bool isOpen = true;
  while (child.isKept && !child.waitStatus) {
    const milliseconds left = Remaining(deadline);
    if (left.count() == 0) return OutputEnd::kTooLong;
    pollfd waits[] = {
        {child.reports.Get(),                   POLLIN, 0},
        {isOpen ? child.output.Get() : int{-1}, POLLIN, 0}  // poll ignores -1
    };
    poll(waits, 2, static_cast<int>(left.count()));
    if (waits[0].revents != 0) {
      ReadReport(child);
    } else if (waits[1].revents != 0) {
      isOpen = ReadSome(child.output.Get(), output, std::string::npos);
    }
    if (IsTooMuch(output)) return OutputEnd::kTooMuch;
  }
  TakeTheRest(child.output.Get(), output);
  return IsTooMuch(output) ? OutputEnd::kTooMuch : OutputEnd::kComplete;
}

bool EndProcessTree(ChildProcess& child) {
  const Deadline giveUp = std::chrono::steady_clock::now() + kPatience;
  shutdown(child.reports.Get(), SHUT_WR);
  while (child.isKept) {
    const milliseconds left = Remaining(giveUp);
    if (left.count() == 0) return false;
    pollfd reports{child.reports.Get(), POLLIN, 0};
    if (poll(&reports, 1, static_cast<int>(left.count())) > 0) ReadReport(child);
  }
  while (waitpid(child.keeper, nullptr, 0) < 0 && errno == EINTR) {
  }
  return true;
}

}  // namespace NKVRHXA20
