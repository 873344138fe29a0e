#pragma once

namespace NKVRHXA20 {

// The host's end of a socket to a keeper (see keeper.h), known to StopRuns as long as it is open; or none.
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
