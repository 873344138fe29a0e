#include "host/hxahost/text/escaping.h"

#include <array>
#include <cstdio>

#include "host/hxahost/text/code_range.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// C0 and C1 controls, what is invisible or turns the direction of the text around it, and codes that are no character.
constexpr CodeRange kUnsafe[] = {
    {0x00,    0x1f   },
    {0x7f,    0x9f   },
    {0xad,    0xad   },
    {0x61c,   0x61c  },
    {0x180e,  0x180e },
    {0x200b,  0x200f },
    {0x2028,  0x202e },
    {0x2060,  0x206f },
    {0xfeff,  0xfeff },
    {0xfff9,  0xfffb },
    {0xfffe,  0xffff },
    {0xe0000, 0xe007f}, // copies of ASCII that nobody sees
};

std::string_view WithoutOuterSpace(std::string_view text) {
  constexpr std::string_view kSpace = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

constexpr char32_t kFirstOfTwoUnits = 0x10000;  // of UTF-16

std::string ByNumber(char32_t code, const char* format) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), format, static_cast<unsigned>(code));
  return text.data();
}

std::string Escaped(char32_t code) {
  if (code == '\t') return "\\t";
  if (code == '\r') return "\\r";
  if (code == '\n') return "\\n";
  return ByNumber(code, code < 0x100 ? "\\x%02x" : code < kFirstOfTwoUnits ? "\\u%04x" : "\\U%08x");
}

}  // namespace

std::string ByCodeUnits(char32_t code, const char* format) {
  if (code < kFirstOfTwoUnits) return ByNumber(code, format);
  const char32_t offset = code - kFirstOfTwoUnits;
  return ByNumber(0xd800 + (offset >> 10U), format) + ByNumber(0xdc00 + (offset & 0x3ffU), format);
}

bool IsUnsafe(char32_t code) { return IsIn(code, kUnsafe); }

std::string EscapeControls(std::string_view bytes) {
  const std::string utf8 = AsUtf8(bytes);
  std::string printable;
  std::string_view rest = utf8;
  while (!rest.empty()) {
    const Character character = NextCharacter(rest);
    if (IsUnsafe(character.code)) {
      printable += Escaped(character.code);
    } else {
      printable += rest.substr(0, character.length);
    }
    rest.remove_prefix(character.length);
  }
  return printable;
}

std::string Printable(std::string_view bytes) { return EscapeControls(WithoutOuterSpace(bytes)); }

std::size_t PrintableLength(std::string_view bytes) {
  if (bytes.empty()) return 0;
  const Character character = NextCharacter(bytes);
  return IsUnsafe(character.code) ? 0 : character.length;
}

}  // namespace hxahost
