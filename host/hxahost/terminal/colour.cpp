#include "host/hxahost/terminal/colour.h"

#include <string_view>

namespace hxahost {

std::string InColour(const std::string& text, Colour colour) {
  constexpr std::string_view kColours[] = {"\x1b[31m", "\x1b[32m", "\x1b[33m", "\x1b[35m"};
  return std::string(kColours[static_cast<std::size_t>(colour)]) + text + "\x1b[0m";
}

}  // namespace hxahost
