#pragma once

#include <cstddef>
#include <optional>

namespace hxahost {

bool StandardErrorIsTerminal();
bool StandardOutputIsTerminal();

// What the terminal of a stream can show. Asked only where there is one.
enum class TerminalStream { kOutput, kError };
std::optional<std::size_t> TerminalWidth(TerminalStream stream);
bool TerminalShowsUtf8();
bool TerminalTakesColours();  // of standard output

}  // namespace hxahost
