#include "host/hxahost/text/display_width.h"

#include "host/hxahost/text/code_range.h"
#include "host/hxahost/text/combining.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// Two columns each.
constexpr CodeRange kWide[] = {
    {0x1100,  0x115f },
    {0x2e80,  0xa4cf },
    {0xac00,  0xd7a3 },
    {0xf900,  0xfaff },
    {0xfe30,  0xfe6f },
    {0xff00,  0xff60 },
    {0xffe0,  0xffe6 },
    {0x1f300, 0x1faff},
    {0x20000, 0x3fffd},
};

std::size_t Columns(char32_t code) {
  if (IsCombining(code)) return 0;
  return IsIn(code, kWide) ? 2 : 1;
}

}  // namespace

std::size_t DisplayWidth(std::string_view utf8) {
  std::size_t width = 0;
  ForEachCharacter(utf8, [&width](char32_t code, std::string_view) { width += Columns(code); });
  return width;
}

std::size_t LengthOfWidth(std::string_view utf8, std::size_t columns) {
  std::size_t length = 0;
  std::size_t width = 0;
  while (length < utf8.size()) {
    const Character character = NextCharacter(utf8.substr(length));
    width += Columns(character.code);
    if (width > columns) break;
    length += character.length;
  }
  return length;
}

std::string CutToWidth(std::string_view utf8, std::size_t columns) {
  if (DisplayWidth(utf8) <= columns) return std::string(utf8);
  if (columns == 0) return {};
  return std::string(utf8.substr(0, LengthOfWidth(utf8, columns - 1))) + "\u2026";
}

}  // namespace hxahost
