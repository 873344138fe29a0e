#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace hxahost {

// Returns any 32 bits.
using RandomSource = std::function<std::uint32_t()>;

// The system's own, which nobody can predict.
RandomSource SystemRandom();

// Replaces letters by random letters and digits by random digits; length, upper and lower case and all other characters
// stay. A text always gets the same mask, letters of either case alike, and two texts never share a mask. Masks are
// drawn, not computed: only this object can assign a mask to its text.
class TextMask {
 public:
  explicit TextMask(RandomSource random) : random_(std::move(random)) {}

  std::string Mask(std::string_view text);

 private:
  std::string Draw(std::string_view folded);
  std::string Choose(std::string_view folded);

  RandomSource random_;
  std::map<std::string, std::string> masks_;  // of texts in lower case
  std::set<std::string> given_;
};

// Letters of ASCII and ISO 8859-1 in lower case, backslashes as slashes; the length and other characters do not change.
std::string FoldCase(std::string_view text);

}  // namespace hxahost
