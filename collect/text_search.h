#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

// Where the label stands first in a whole report, from a position on; npos where it does not. The same as
// std::string_view::find, which stops at every character that the label begins with: at each "C" and "S" of a report.
// This one stops at the label's rarest character, and reads a report without the label in one go.
std::size_t FindInReport(std::string_view report, std::string_view label, std::size_t from = 0);

// Whether a whole report contains the label, in exact case.
inline bool ReportContains(std::string_view report, std::string_view label) {
  return FindInReport(report, label) != report.npos;
}

// Whether the first so many characters are the same, and the last so many.
template <std::size_t kCount>
bool AreEndsSame(const char* one, const char* other, std::size_t length) {
  const std::size_t last = length - kCount;
  return std::memcmp(one, other, kCount) == 0 && std::memcmp(one + last, other + last, kCount) == 0;
}

// Whether all characters are the same. Labels are short: two comparisons that meet or overlap, of a length that the
// compiler knows, take half of what a call does.
inline bool AreSame(const char* one, const char* other, std::size_t length) {
  if (length > 32) return std::memcmp(one, other, length) == 0;
  if (length > 16) return AreEndsSame<16>(one, other, length);
  if (length >= 8) return AreEndsSame<8>(one, other, length);
  if (length >= 4) return AreEndsSame<4>(one, other, length);
  return length >= 2 ? AreEndsSame<2>(one, other, length) : length == 0 || *one == *other;
}

// Where the label stands first in a line; npos where it does not. The same as std::string_view::find, too: most labels
// either stand where the line has their first character first, or their first character is not on the line.
inline std::size_t FindInLine(std::string_view line, std::string_view label) {
  if (label.empty() || label.size() > line.size()) return label.empty() ? 0 : line.npos;
  const void* const first = std::memchr(line.data(), label.front(), line.size() - label.size() + 1);
  if (first == nullptr) return line.npos;
  const auto at = static_cast<std::size_t>(static_cast<const char*>(first) - line.data());
  return AreSame(line.data() + at, label.data(), label.size()) ? at : line.find(label, at + 1);
}

// Whether a line, or a text as short, contains the label, in exact case.
inline bool Contains(std::string_view line, std::string_view label) { return FindInLine(line, label) != line.npos; }
