#include "host/hxahost/system/terminal.h"

#include <windows.h>

namespace hxahost {

bool StandardErrorIsTerminal() {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

bool StandardOutputIsTerminal() {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0;
}

// The width of the window: the console's buffer may be wider.
std::optional<std::size_t> TerminalWidth(TerminalStream stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  const DWORD handle = stream == TerminalStream::kOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE;
  if (GetConsoleScreenBufferInfo(GetStdHandle(handle), &info) == 0) return std::nullopt;
  const int width = info.srWindow.Right - info.srWindow.Left + 1;
  return width > 0 ? std::optional(static_cast<std::size_t>(width)) : std::nullopt;
}

bool TerminalShowsUtf8() { return GetConsoleOutputCP() == CP_UTF8; }

// Older consoles show escape sequences as text unless this mode is set.
bool TerminalTakesColours() {
  constexpr DWORD kReadSequences = 0x0004;
  const auto output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 && SetConsoleMode(output, mode | kReadSequences) != 0;
}

}  // namespace hxahost
