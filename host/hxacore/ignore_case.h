#pragma once

#include <algorithm>
#include <string_view>

namespace NKVRHXA20 {

// CIM names are ASCII and compare without regard to case, whatever the locale says of a letter.
constexpr char LowerCase(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

constexpr bool EqualIgnoringCase(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, {}, LowerCase, LowerCase);
}

}  // namespace NKVRHXA20
