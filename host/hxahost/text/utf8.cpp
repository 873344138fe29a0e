#include "host/hxahost/text/utf8.h"

#include <algorithm>
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

}  // namespace

Character NextCharacter(std::string_view utf8) { return FirstCharacter(utf8).value_or(Character{}); }

std::string AsUtf8(std::string_view bytes) { return IsUtf8(bytes) ? std::string(bytes) : FromLatin1(bytes); }

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace hxahost
