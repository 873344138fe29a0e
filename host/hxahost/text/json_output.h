#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace hxahost {

// JSON as text; with an indent, one line for each value. It is ASCII, all other characters are escapes: people look at
// results on terminals, and JSON itself leaves characters as they are that act on them. Texts must be UTF-8.
inline std::string JsonText(const nlohmann::ordered_json& json, int indent = -1) {
  return json.dump(indent, ' ', true);
}

}  // namespace hxahost
