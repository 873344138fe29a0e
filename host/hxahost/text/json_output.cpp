#include "host/hxahost/text/json_output.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// All but a delete character and what is not ASCII: control characters within texts are escapes already, and the line
// feeds of the layout stay.
std::string_view TakeAscii(std::string_view& text) {
  const auto isPlain = [](char character) { return static_cast<unsigned char>(character) < 0x7f; };
  const auto length = static_cast<std::size_t>(std::ranges::find_if_not(text, isPlain) - text.begin());
  const std::string_view plain = text.substr(0, length);
  text.remove_prefix(length);
  return plain;
}

}  // namespace

std::string JsonText(const nlohmann::ordered_json& json, int indent) {
  const std::string dumped = json.dump(indent);
  std::string text;
  std::string_view rest = dumped;
  for (text += TakeAscii(rest); !rest.empty(); text += TakeAscii(rest)) {
    const Character character = NextCharacter(rest);
    text += IsUnsafe(character.code) ? ByCodeUnits(character.code, "\\u%04x")
                                     : std::string(rest.substr(0, character.length));
    rest.remove_prefix(character.length);
  }
  return text;
}

}  // namespace hxahost
