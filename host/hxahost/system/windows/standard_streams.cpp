#include "host/hxahost/system/standard_streams.h"

#include <cstdio>

#include <windows.h>

#include <fcntl.h>
#include <io.h>

namespace hxahost {

StandardStreams::StandardStreams() : consoleBefore_(GetConsoleOutputCP()) {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

StandardStreams::~StandardStreams() {
  if (consoleBefore_ != 0) SetConsoleOutputCP(consoleBefore_);
}

}  // namespace hxahost
