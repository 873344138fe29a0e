#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace hxahost {

// The columns that UTF-8 text takes on a terminal.
std::size_t DisplayWidth(std::string_view utf8);

// The length in bytes of as many characters at the beginning of the text as fit into the columns.
std::size_t LengthOfWidth(std::string_view utf8, std::size_t columns);

// The text, cut to the columns; if it is cut, its last character is an ellipsis.
std::string CutToWidth(std::string_view utf8, std::size_t columns);

}  // namespace hxahost
