#pragma once

#include <string>

namespace hxahost {

enum class Colour { kRed, kGreen, kYellow, kMagenta };

// The text between the sequences that give it a colour on a terminal.
std::string InColour(const std::string& text, Colour colour);

}  // namespace hxahost
