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

// Replaces letters by random letters and digits by random digits; the number of bytes, upper and lower case and all
// other characters stay. A text always gets the same mask, letters of either case alike, in either encoding, and two
// texts never share a mask. Masks are drawn, not computed: only this object can assign a mask to its text.
class TextMask {
 public:
  explicit TextMask(RandomSource random) : random_(std::move(random)) {}

  std::string Mask(std::string_view text);

 private:
  std::u32string Draw(std::u32string_view folded);
  std::u32string Choose(std::u32string_view folded);

  RandomSource random_;
  std::map<std::u32string, std::u32string> masks_;  // of texts in lower case
  std::set<std::u32string> given_;
};

}  // namespace hxahost
