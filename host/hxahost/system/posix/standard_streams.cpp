#include "host/hxahost/system/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

namespace hxahost {

// The lowest number is free. Nothing can be written to what is opened for reading. This system passes a program's bytes
// on unchanged, and terminals show UTF-8.
StandardStreams::StandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) < 0) open("/dev/null", O_RDONLY);
  }
}
StandardStreams::~StandardStreams() = default;

}  // namespace hxahost
