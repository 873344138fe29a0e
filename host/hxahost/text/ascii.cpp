#include "host/hxahost/text/ascii.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "host/hxacore/ignore_case.h"

namespace hxahost {

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kWhiteSpace);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), NKVRHXA20::LowerCase);
  return lower;
}

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& letter : upper) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return upper;
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> pieces;
  for (std::size_t end = text.find(separator); end != text.npos; end = text.find(separator)) {
    pieces.push_back(text.substr(0, end));
    text.remove_prefix(end + separator.size());
  }
  pieces.push_back(text);
  return pieces;
}

std::vector<std::string_view> SplitAtAny(std::string_view text, std::string_view separators) {
  std::vector<std::string_view> pieces;
  for (std::size_t end = text.find_first_of(separators); end != text.npos; end = text.find_first_of(separators)) {
    pieces.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  pieces.push_back(text);
  return pieces;
}

// from_chars also accepts "nan" and "inf".
std::optional<double> LeadingNumber(std::string_view text) {
  double number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  return error == std::errc() && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool IsDigits(std::string_view text) { return !text.empty() && text.find_first_not_of("0123456789") == text.npos; }

std::optional<std::uint64_t> ReadCount(std::string_view text) {
  if (!IsDigits(text)) return std::nullopt;
  std::uint64_t count = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  return error == std::errc::result_out_of_range ? std::numeric_limits<std::uint64_t>::max() : count;
}

std::string WithSingleBlanks(std::string_view text) {
  std::string words;
  for (const char character : text) {
    if (std::isspace(static_cast<unsigned char>(character)) == 0) {
      words += character;
    } else if (!words.empty() && words.back() != ' ') {
      words += ' ';
    }
  }
  if (!words.empty() && words.back() == ' ') words.pop_back();
  return words;
}

std::size_t FindWords(std::string_view text, std::string_view words, std::size_t from) {
  const auto isBoundary = [text](std::size_t place) {
    return std::isspace(static_cast<unsigned char>(text[place])) != 0 ||
           std::ispunct(static_cast<unsigned char>(text[place])) != 0;
  };
  const auto isEdge = [&](std::size_t place) {
    return place == 0 || place >= text.size() || isBoundary(place) || isBoundary(place - 1);
  };
  std::size_t place = text.find(words, from);
  while (place != text.npos && !(isEdge(place) && isEdge(place + words.size()))) place = text.find(words, place + 1);
  return place;
}

}  // namespace hxahost
