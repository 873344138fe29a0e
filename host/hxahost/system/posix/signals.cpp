#include "host/hxahost/system/signals.h"

#include <csignal>

namespace hxahost {

void SetSignals() {
  std::signal(SIGCHLD, SIG_DFL);
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace hxahost
