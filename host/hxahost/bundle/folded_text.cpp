#include "host/hxahost/bundle/folded_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <system_error>

#include "host/hxahost/text/letter_case.h"

namespace hxahost {

namespace {

struct Entity {
  std::string_view name;
  char32_t code;
};

constexpr Entity kEntities[] = {
    {"amp",  '&' },
    {"lt",   '<' },
    {"gt",   '>' },
    {"quot", '"' },
    {"apos", '\''},
};

// 38 of "#38" and "#x26".
std::optional<char32_t> CodeOfNumber(std::string_view text) {
  constexpr std::uint32_t kLastCode = 0x10ffff;
  const bool isHex = text.starts_with("#x");
  const std::string_view digits = text.substr(isHex ? 2 : 1);
  std::uint32_t code = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), code, isHex ? 16 : 10);
  const bool isWhole = failure == std::errc() && end == digits.data() + digits.size();
  return isWhole && code > 0 && code <= kLastCode ? std::optional<char32_t>(code) : std::nullopt;
}

// The character of the entity that the text begins with.
std::optional<Character> CharacterOfEntity(std::string_view text) {
  constexpr std::size_t kLongest = 10;  // &#x1F600;
  const std::size_t end = text.substr(0, kLongest).find(';');
  if (end == text.npos) return std::nullopt;
  const std::string_view name = text.substr(1, end - 1);
  if (name.starts_with('#')) {
    const auto code = CodeOfNumber(name);
    return code ? std::optional<Character>({*code, end + 1}) : std::nullopt;
  }
  const auto* const entity = std::ranges::find(kEntities, name, &Entity::name);
  return entity != std::end(kEntities) ? std::optional<Character>({entity->code, end + 1}) : std::nullopt;
}

}  // namespace

Character FirstCharacter(std::string_view text, Reading reading) {
  const auto byte = static_cast<unsigned char>(text.front());
  if (reading == Reading::kLatin1 || (byte < 0x80 && byte != '&')) return {byte, 1};
  if (byte == '&') return CharacterOfEntity(text).value_or(Character{byte, 1});
  const Character character = NextCharacter(text);
  return character.code == 0 ? Character{byte, 1} : character;
}

char32_t Folded(char32_t code) { return code == '\\' ? U'/' : FoldCase(code); }

std::u32string FoldedCharacters(std::string_view text) {
  std::u32string folded;
  while (!text.empty()) {
    const auto [code, length] = FirstCharacter(text);
    folded += Folded(code);
    text.remove_prefix(length);
  }
  return folded;
}

std::string FoldCase(std::string_view text) { return Utf8Of(FoldedCharacters(text)); }

std::string Utf8Of(std::u32string_view characters) {
  std::string text;
  for (const char32_t code : characters) AppendUtf8(text, code);
  return text;
}

}  // namespace hxahost
