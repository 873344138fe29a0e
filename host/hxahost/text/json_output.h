#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace hxahost {

// JSON as text; with an indent, one line for each value. Characters outside ASCII are escaped: people look at results
// on terminals, and JSON itself permits characters that act on a terminal. Texts must be UTF-8.
inline std::string JsonText(const nlohmann::ordered_json& json, int indent = -1) {
  return json.dump(indent, ' ', true);
}

}  // namespace hxahost
