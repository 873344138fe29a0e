#pragma once

namespace NKVRHXA20 {

// The host's end of a socket to a keeper (see keeper.h), registered for StopRuns while it is open; or none.
class TRunSocket {
 public:
  TRunSocket() = default;
  explicit TRunSocket(int socket);
  TRunSocket(TRunSocket&& other) noexcept;
  TRunSocket& operator=(TRunSocket&& other) noexcept;
  ~TRunSocket();

  int Get() const { return socket_; }

 private:
  int socket_ = -1;
};

}  // namespace NKVRHXA20
