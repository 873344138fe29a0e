#pragma once

#include <string>

namespace hxahost {

enum class Colour { kRed, kGreen, kYellow, kMagenta };

// The text, with the escape sequences for a colour on a terminal around it.
std::string InColour(const std::string& text, Colour colour);

}  // namespace hxahost
