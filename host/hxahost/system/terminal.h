#pragma once

#include <cstddef>
#include <optional>

namespace hxahost {

bool StandardErrorIsTerminal();
bool StandardOutputIsTerminal();

// The abilities of a stream's terminal. Call these only if the stream is a terminal.
enum class TerminalStream { kOutput, kError };
std::optional<std::size_t> TerminalWidth(TerminalStream stream);
bool TerminalShowsUtf8();
bool TerminalTakesColours();  // of standard output

}  // namespace hxahost
