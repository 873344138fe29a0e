#include "host/hxahost/text/text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <optional>

namespace hxahost {

namespace {

// The shortest form is the only valid one: what each length holds begins at "lowest".
struct Lead {
  unsigned mask;
  unsigned pattern;
  std::size_t length;
  char32_t lowest;
};

constexpr Lead kLeads[] = {
    {0x80U, 0x00U, 1, 0x0    },
    {0xe0U, 0xc0U, 2, 0x80   },
    {0xf0U, 0xe0U, 3, 0x800  },
    {0xf8U, 0xf0U, 4, 0x10000},
};

struct Range {
  char32_t first;
  char32_t last;
};

// C0 and C1 controls, what is invisible or turns the direction of the text around it, and codes that are no character.
constexpr Range kUnsafe[] = {
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

// None: they are drawn over the character before. Marks of scripts whose letters change shape are counted as one.
constexpr Range kCombining[] = {
    {0x300,   0x36f  },
    {0x483,   0x489  },
    {0x591,   0x5bd  },
    {0x610,   0x61a  },
    {0x64b,   0x65f  },
    {0x1ab0,  0x1aff },
    {0x1dc0,  0x1dff },
    {0x20d0,  0x20ff },
    {0xfe00,  0xfe0f },
    {0xfe20,  0xfe2f },
    {0xe0100, 0xe01ef},
};

// Two columns each.
constexpr Range kWide[] = {
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

template <std::size_t N>
bool IsIn(char32_t code, const Range (&ranges)[N]) {
  return std::ranges::any_of(ranges, [code](const Range& range) { return code >= range.first && code <= range.last; });
}

unsigned Byte(std::string_view text, std::size_t index) { return static_cast<unsigned char>(text[index]); }

// The character at the start of the text; nothing where it is not valid UTF-8.
std::optional<Character> FirstCharacter(std::string_view text) {
  const unsigned first = Byte(text, 0);
  const auto* const lead =
      std::ranges::find_if(kLeads, [first](const Lead& each) { return (first & each.mask) == each.pattern; });
  if (lead == std::end(kLeads) || text.size() < lead->length) return std::nullopt;
  char32_t code = first & ~lead->mask;
  for (std::size_t index = 1; index < lead->length; ++index) {
    const unsigned next = Byte(text, index);
    if ((next & 0xc0U) != 0x80U) return std::nullopt;
    code = (code << 6U) | (next & 0x3fU);
  }
  const bool isSurrogate = code >= 0xd800 && code <= 0xdfff;
  if (code < lead->lowest || code > 0x10ffff || isSurrogate) return std::nullopt;
  return Character{code, lead->length};
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const auto character = FirstCharacter(text);
    if (!character) return false;
    text.remove_prefix(character->length);
  }
  return true;
}

std::string FromLatin1(std::string_view bytes) {
  std::string text;
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    const unsigned code = Byte(bytes, index);
    if (code < 0x80U) {
      text += static_cast<char>(code);
    } else {
      text += static_cast<char>(0xc0U | (code >> 6U));
      text += static_cast<char>(0x80U | (code & 0x3fU));
    }
  }
  return text;
}

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

std::size_t Columns(char32_t code) {
  if (IsIn(code, kCombining)) return 0;
  return IsIn(code, kWide) ? 2 : 1;
}

}  // namespace

Character NextCharacter(std::string_view utf8) { return FirstCharacter(utf8).value_or(Character{}); }

std::string ByCodeUnits(char32_t code, const char* format) {
  if (code < kFirstOfTwoUnits) return ByNumber(code, format);
  const char32_t offset = code - kFirstOfTwoUnits;
  return ByNumber(0xd800 + (offset >> 10U), format) + ByNumber(0xdc00 + (offset & 0x3ffU), format);
}

bool IsUnsafe(char32_t code) { return IsIn(code, kUnsafe); }

std::string AsUtf8(std::string_view bytes) { return IsUtf8(bytes) ? std::string(bytes) : FromLatin1(bytes); }

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
  const auto character = FirstCharacter(bytes);
  return character && !IsIn(character->code, kUnsafe) ? character->length : 0;
}

std::size_t DisplayWidth(std::string_view utf8) {
  std::size_t width = 0;
  while (!utf8.empty()) {
    const Character character = NextCharacter(utf8);
    width += Columns(character.code);
    utf8.remove_prefix(character.length);
  }
  return width;
}

std::string CutToWidth(std::string_view utf8, std::size_t columns) {
  if (DisplayWidth(utf8) <= columns) return std::string(utf8);
  if (columns == 0) return {};
  std::size_t length = 0;
  std::size_t width = 1;  // the ellipsis
  while (true) {
    const Character character = NextCharacter(utf8.substr(length));
    width += Columns(character.code);
    if (width > columns) break;
    length += character.length;
  }
  return std::string(utf8.substr(0, length)) + "\u2026";
}

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace hxahost
