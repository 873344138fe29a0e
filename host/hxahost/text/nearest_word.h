#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// The word that somebody meant who typed something else: the one that it begins, or the one with the fewest letters
// that are missing, too many, wrong or swapped. "" where none is near.
std::string NearestWord(std::string_view typed, const std::vector<std::string>& words);

}  // namespace hxahost
