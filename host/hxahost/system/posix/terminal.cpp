#include "host/hxahost/system/terminal.h"

#include <cstdlib>
#include <string>

#include <sys/ioctl.h>
#include <unistd.h>

namespace hxahost {

bool StandardErrorIsTerminal() { return isatty(STDERR_FILENO) == 1; }
bool StandardOutputIsTerminal() { return isatty(STDOUT_FILENO) == 1; }

std::optional<std::size_t> TerminalWidth(TerminalStream stream) {
  winsize size{};
  const int descriptor = stream == TerminalStream::kOutput ? STDOUT_FILENO : STDERR_FILENO;
  if (ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return std::nullopt;
  return size.ws_col;
}

// The first of the three that is set decides, even if the system has no locale of that name.
bool TerminalShowsUtf8() {
  for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    const std::string locale(value);
    return locale.find("UTF-8") != std::string::npos || locale.find("utf8") != std::string::npos;
  }
  return false;
}

bool TerminalTakesColours() {
  const char* const terminal = std::getenv("TERM");
  return terminal != nullptr && std::string(terminal) != "dumb";
}

}  // namespace hxahost
