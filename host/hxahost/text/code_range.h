#pragma once

#include <algorithm>
#include <cstddef>

namespace hxahost {

// Codes of characters, both ends included.
struct CodeRange {
  char32_t first;
  char32_t last;
};

template <std::size_t N>
bool IsIn(char32_t code, const CodeRange (&ranges)[N]) {
  return std::ranges::any_of(ranges,
                             [code](const CodeRange& range) { return code >= range.first && code <= range.last; });
}

}  // namespace hxahost
