#pragma once

#include <algorithm>
#include <string_view>

namespace NKVRHXA20 {

// CIM names are ASCII and are compared without regard to case, independent of the locale.
constexpr char LowerCase(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

constexpr bool EqualIgnoringCase(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, {}, LowerCase, LowerCase);
}

}  // namespace NKVRHXA20
