#include "host/hxahost/text/nearest_word.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace hxahost {

namespace {

// The edit distance: row N compares the first N letters typed with every beginning of the word.
std::size_t Mistakes(std::string_view typed, std::string_view word) {
  std::vector<std::size_t> beforeLast;
  std::vector<std::size_t> last(word.size() + 1);
  std::iota(last.begin(), last.end(), 0);
  for (std::size_t row = 1; row <= typed.size(); ++row) {
    std::vector<std::size_t> current = {row};
    for (std::size_t column = 1; column <= word.size(); ++column) {
      const bool isSame = typed[row - 1] == word[column - 1];
      std::size_t least = std::min({last[column] + 1, current.back() + 1, last[column - 1] + (isSame ? 0 : 1)});
      const bool isSwapped =
          row > 1 && column > 1 && typed[row - 2] == word[column - 1] && typed[row - 1] == word[column - 2];
      if (isSwapped) least = std::min(least, beforeLast[column - 2] + 1);
      current.push_back(least);
    }
    beforeLast = std::exchange(last, std::move(current));
  }
  return last.back();
}

}  // namespace

std::string NearestWord(std::string_view typed, const std::vector<std::string>& words) {
  constexpr std::size_t kLettersPerMistake = 3;
  std::string nearest;
  std::size_t fewest = typed.size() / kLettersPerMistake + 1;
  for (const std::string& word : words) {
    const bool isBegun = typed.size() > 1 && word.starts_with(typed);
    const std::size_t mistakes = isBegun ? 0 : Mistakes(typed, word);
    if (mistakes < fewest) {
      fewest = mistakes;
      nearest = word;
    }
  }
  return nearest;
}

}  // namespace hxahost
