#include "host/hxahost/text/escaping.h"

#include <fmt/core.h>

#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/code_range.h"
#include "host/hxahost/text/combining.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// C0 and C1 controls, invisible characters, those that change the direction of text, and codes that are not characters.
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
    {0xe0000, 0xe007f}, // invisible copies of ASCII
};

// Invisible characters, too; bundles of older programs contain them unescaped.
constexpr CodeRange kInvisible[] = {
    {0x34f,   0x34f  },
    {0x115f,  0x1160 },
    {0x17b4,  0x17b5 },
    {0x180b,  0x180f },
    {0x2800,  0x2800 },
    {0x3164,  0x3164 },
    {0xfe00,  0xfe0f },
    {0xffa0,  0xffa0 },
    {0xfff0,  0xfff8 },
    {0x1bca0, 0x1bca3},
    {0x1d173, 0x1d17a},
    {0xe0080, 0xe0fff},
};

// No language uses more marks on one character; more are drawn over the lines above and below.
constexpr std::size_t kMostMarks = 4;

// Nearly all characters: the tables are not searched for them.
bool IsPrintableAscii(char32_t code) { return code >= ' ' && code <= '~'; }

std::string Escaped(char32_t code) {
  if (code == '\t') return "\\t";
  if (code == '\r') return "\\r";
  if (code == '\n') return "\\n";
  const auto number = static_cast<unsigned>(code);
  if (code < 0x100) return fmt::format("\\x{:02x}", number);
  if (code < 0x10000) return fmt::format("\\u{:04x}", number);
  return fmt::format("\\U{:08x}", number);
}

}  // namespace

bool UnsafeCharacters::Has(char32_t next) {
  if (IsPrintableAscii(next)) {
    marks_ = 0;
    return false;
  }
  marks_ = IsCombining(next) ? marks_ + 1 : 0;
  return marks_ > kMostMarks || IsIn(next, kUnsafe) || IsIn(next, kInvisible);
}

std::string EscapeControls(std::string_view bytes) {
  std::string printable;
  UnsafeCharacters unsafe;
  ForEachCharacter(AsUtf8(bytes), [&](char32_t code, std::string_view character) {
    unsafe.Has(code) ? printable += Escaped(code) : printable += character;
  });
  return printable;
}

std::string Printable(std::string_view bytes) { return EscapeControls(Trim(bytes)); }

std::size_t PrintableLength(std::string_view bytes) {
  if (bytes.empty()) return 0;
  if (IsPrintableAscii(static_cast<unsigned char>(bytes.front()))) return 1;
  const Character character = NextCharacter(bytes);
  return IsIn(character.code, kUnsafe) ? 0 : character.length;
}

}  // namespace hxahost
