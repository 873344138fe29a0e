#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace hxahost {

// Any 32 bits.
using RandomSource = std::function<std::uint32_t()>;

// The system's own, which nobody can foretell.
RandomSource SystemRandom();

// Puts random letters into the place of letters and random digits into the place of digits; length, upper and lower
// case and all other characters stay. The same text always gets the same mask, letters of either case alike, and two
// texts never share one. Masks are drawn and not computed: only this knows which text a mask stands for.
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

// Letters of ASCII and ISO 8859-1 in lower case, backslashes as slashes; all else as it is, and at its place.
std::string FoldCase(std::string_view text);

}  // namespace hxahost
