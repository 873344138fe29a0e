#include "collect/text_search.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace {

// The characters of reports, the most frequent first: blanks that line columns up, rules, small letters, digits. All
// others are rare.
constexpr std::string_view kFrequentFirst = " -ero\r\ninta:0lscdS1Dum2CRvAp37hbEf,F4|gN()T5MB./LP68VHOy9wXUWkIKzYxZ";

constexpr auto kRarity = [] {
  std::array<std::uint8_t, 256> rarity{};
  rarity.fill(kFrequentFirst.size());
  for (std::size_t rank = kFrequentFirst.size(); rank-- > 0;) {
    rarity[static_cast<unsigned char>(kFrequentFirst[rank])] = static_cast<std::uint8_t>(rank);
  }
  return rarity;
}();

bool IsMoreFrequent(char one, char other) {
  return kRarity[static_cast<unsigned char>(one)] < kRarity[static_cast<unsigned char>(other)];
}

}  // namespace

std::size_t FindInReport(std::string_view report, std::string_view label, std::size_t from) {
  if (label.empty()) return report.find(label, from);
  const auto rarest = std::ranges::max_element(label, IsMoreFrequent);
  const auto before = static_cast<std::size_t>(rarest - label.begin());
  if (from > report.size() || report.size() - from < label.size()) return report.npos;
  // Where the rarest character may stand so that the label has room in front of it and behind it.
  const char* at = report.data() + from + before;
  const char* const end = report.data() + report.size() - label.size() + before + 1;
  const char first = label.front();
  for (; (at = std::char_traits<char>::find(at, static_cast<std::size_t>(end - at), *rarest)) != nullptr; ++at) {
    const char* const begin = at - before;
    if (*begin == first && AreSame(begin, label.data(), label.size())) {
      return static_cast<std::size_t>(begin - report.data());
    }
  }
  return report.npos;
}
