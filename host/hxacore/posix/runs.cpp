#include "host/hxacore/posix/runs.h"

#include <chrono>
#include <mutex>
#include <set>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "host/hxacore/operating_system.h"

namespace NKVRHXA20 {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

struct Runs {
  std::mutex mutex;
  std::set<int> sockets;
};

// Never destroyed: a thread may still be running a program when this process ends.
Runs& AllRuns() {
  static auto* const runs = new Runs;
  return *runs;
}

}  // namespace

TRunSocket::TRunSocket(int socket) : socket_(socket) {
  const std::lock_guard lock(AllRuns().mutex);
  AllRuns().sockets.insert(socket);
}

TRunSocket::TRunSocket(TRunSocket&& other) noexcept : socket_(std::exchange(other.socket_, -1)) {}

TRunSocket& TRunSocket::operator=(TRunSocket&& other) noexcept {
  std::swap(socket_, other.socket_);
  return *this;
}

TRunSocket::~TRunSocket() {
  if (socket_ < 0) return;
  const std::lock_guard lock(AllRuns().mutex);
  AllRuns().sockets.erase(socket_);
  close(socket_);
}

// The mutex stays locked: no run begins any more, and no run closes a socket that is waited for here.
void StopRuns() {
  AllRuns().mutex.lock();
  const auto giveUp = steady_clock::now() + kPatience;
  for (const int socket : AllRuns().sockets) shutdown(socket, SHUT_WR);
  for (const int socket : AllRuns().sockets) {
    const auto left = std::chrono::ceil<milliseconds>(giveUp - steady_clock::now());
    pollfd keeper{socket, 0, 0};  // reports the keeper's end
    poll(&keeper, 1, left.count() > 0 ? static_cast<int>(left.count()) : 0);
  }
}

}  // namespace NKVRHXA20
