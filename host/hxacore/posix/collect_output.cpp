#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <thread>

#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/posix/child_process.h"

namespace NKVRHXA20 {

namespace {

using std::chrono::milliseconds;

// How often a kernel without descriptors of processes is asked whether the program has ended.
constexpr milliseconds kAskAgain{5};

// Rounded up: a wait of 0 would turn the last millisecond into a busy loop.
milliseconds Remaining(Deadline deadline) {
  const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
  return std::clamp(left, milliseconds(0), milliseconds(std::numeric_limits<int>::max()));
}

enum class Arrived { kBytes, kEnd, kNothing };

// Reads once, what is there or would come next.
Arrived ReadSome(int descriptor, std::string& output, std::size_t atMost) {
  std::array<char, std::size_t{64} << 10U> buffer;
  const ssize_t count = read(descriptor, buffer.data(), std::min(buffer.size(), atMost));
  if (count < 0) return errno == EINTR ? Arrived::kNothing : Arrived::kEnd;
  output.append(buffer.data(), static_cast<std::size_t>(count));
  return count > 0 ? Arrived::kBytes : Arrived::kEnd;
}

bool IsTooMuch(const std::string& output) { return output.size() > kOutputLimit; }

// Waits until the program has ended or the deadline passed.
bool WaitForEnd(const ChildProcess& child, Deadline deadline) {
  while (!HasEnded(child)) {
    const milliseconds left = Remaining(deadline);
    if (left.count() == 0) return false;
    if (child.end.Get() >= 0) {
      pollfd end{child.end.Get(), POLLIN, 0};
      poll(&end, 1, static_cast<int>(left.count()));
    } else {
      std::this_thread::sleep_for(std::min(left, kAskAgain));
    }
  }
  return true;
}

// The program has ended: all that it wrote lies in the pipe. Only that is read, because what it has started may write
// for ever.
OutputEnd TakeTheRest(int descriptor, std::string& output) {
  int waiting = 0;
  ioctl(descriptor, FIONREAD, &waiting);
  const std::size_t whole = output.size() + static_cast<std::size_t>(waiting);
  while (output.size() < whole && ReadSome(descriptor, output, whole - output.size()) != Arrived::kEnd) {
  }
  pollfd pipe{descriptor, POLLIN, 0};
  poll(&pipe, 1, 0);
  if (IsTooMuch(output)) return OutputEnd::kTooMuch;
  const bool isClosed = (pipe.revents & POLLHUP) != 0 && (pipe.revents & POLLIN) == 0;
  return isClosed ? OutputEnd::kComplete : OutputEnd::kLeftOpen;
}

}  // namespace

OutputEnd CollectOutput(const ChildProcess& child, Deadline deadline, std::string& output) {
  const bool isTold = child.end.Get() >= 0;
  for (;;) {
    const milliseconds left = Remaining(deadline);
    if (left.count() == 0) return OutputEnd::kTooLong;
    pollfd waits[] = {
        {child.output.Get(), POLLIN, 0},
        {child.end.Get(),    POLLIN, 0}  // -1 is passed over
    };
    const int ready = poll(waits, 2, static_cast<int>((isTold ? left : std::min(left, kAskAgain)).count()));
    if (isTold ? waits[1].revents != 0 : ready == 0 && HasEnded(child)) return TakeTheRest(child.output.Get(), output);
    if (ready <= 0 || waits[0].revents == 0) continue;

    const Arrived arrived = ReadSome(child.output.Get(), output, std::string::npos);
    if (IsTooMuch(output)) return OutputEnd::kTooMuch;
    if (arrived == Arrived::kEnd) return WaitForEnd(child, deadline) ? OutputEnd::kComplete : OutputEnd::kTooLong;
  }
}

bool HasEnded(const ChildProcess& child) {
  siginfo_t how{};
  const int failure = waitid(P_PID, static_cast<id_t>(child.pid), &how, WEXITED | WNOHANG | WNOWAIT);
  return failure != 0 ? errno == ECHILD : how.si_pid == child.pid;
}

bool IsReaped(const ChildProcess& child) {
  siginfo_t how{};
  return waitid(P_PID, static_cast<id_t>(child.pid), &how, WEXITED | WNOHANG | WNOWAIT) != 0 && errno == ECHILD;
}

std::optional<int> Reap(const ChildProcess& child) {
  int status = 0;
  while (waitpid(child.pid, &status, 0) < 0) {
    if (errno != EINTR) return std::nullopt;
  }
  return status;
}

}  // namespace NKVRHXA20
