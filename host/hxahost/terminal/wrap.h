#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// The words of UTF-8 text on lines of at most that many columns, at least 2. A longer word begins a line and goes on on
// the next ones.
std::vector<std::string> WrapWords(std::string_view utf8, std::size_t columns);

}  // namespace hxahost
