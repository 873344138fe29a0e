#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace hxahost {

// JSON as text; with an indent, one line for each value. It is the same JSON to every reader, but whatever must not
// reach a terminal is an escape: JSON itself lets most such characters stand, and people look at results on terminals.
// Texts must be UTF-8.
std::string JsonText(const nlohmann::ordered_json& json, int indent = -1);

}  // namespace hxahost
