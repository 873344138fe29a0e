#include "host/hxahost/json_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string_view>

#include "host/hxahost/text.h"

namespace hxahost {

namespace {

// All but a delete character and what is not ASCII: control characters within texts are escapes already, and the line
// feeds of the layout stay.
std::string_view TakePlain(std::string_view& text) {
  const auto isPlain = [](char character) { return static_cast<unsigned char>(character) < 0x7f; };
  const auto length = static_cast<std::size_t>(std::ranges::find_if_not(text, isPlain) - text.begin());
  const std::string_view plain = text.substr(0, length);
  text.remove_prefix(length);
  return plain;
}

// Every unsafe character has four digits at most.
std::string Escape(char32_t code) {
  std::array<char, 16> escape{};
  std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(code));
  return escape.data();
}

}  // namespace

std::string JsonText(const nlohmann::ordered_json& json, int indent) {
  const std::string dumped = json.dump(indent);
  std::string text;
  std::string_view rest = dumped;
  for (text += TakePlain(rest); !rest.empty(); text += TakePlain(rest)) {
    const Character character = NextCharacter(rest);
    text += IsUnsafe(character.code) ? Escape(character.code) : std::string(rest.substr(0, character.length));
    rest.remove_prefix(character.length);
  }
  return text;
}

}  // namespace hxahost
