#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// The word that was probably meant: the one that begins with the typed letters, or the one with the fewest letters
// missing, added, wrong or swapped. "" if no word is similar.
std::string NearestWord(std::string_view typed, const std::vector<std::string>& words);

}  // namespace hxahost
