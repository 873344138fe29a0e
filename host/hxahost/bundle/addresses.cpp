#include "host/hxahost/bundle/addresses.h"

#include <algorithm>
#include <cctype>

namespace hxahost {

namespace {

bool IsHex(char character) { return std::isxdigit(static_cast<unsigned char>(character)) != 0; }
bool IsWord(char character) { return std::isalnum(static_cast<unsigned char>(character)) != 0; }
bool IsOfUser(char character) {
  return IsWord(character) || std::string_view("._%+-").find(character) != std::string_view::npos;
}
bool IsOfHost(char character) { return IsWord(character) || character == '.' || character == '-'; }

bool IsHexPair(std::string_view text, std::size_t place) {
  return place + 1 < text.size() && IsHex(text[place]) && IsHex(text[place + 1]);
}

// "00:1A:2b:3c:4d:5e", "50-00-c5-00-1a-2b-3c-4d": the length of six pairs or more; otherwise 0.
std::size_t PairsLength(std::string_view text, std::size_t place) {
  constexpr std::size_t kFewestPairs = 6;
  constexpr std::size_t kMostPairs = 20;
  const std::size_t separator = place + 2;
  if (!IsHexPair(text, place) || separator >= text.size()) return 0;
  if (text[separator] != ':' && text[separator] != '-') return 0;
  std::size_t pairs = 1;
  std::size_t end = separator;
  while (pairs <= kMostPairs && end < text.size() && text[end] == text[separator] && IsHexPair(text, end + 1)) {
    end += 3;
    ++pairs;
  }
  return pairs < kFewestPairs || (end < text.size() && IsWord(text[end])) ? 0 : end - place;
}

// "5000C5001A2B3C4D": sixteen hexadecimal digits; the first shows that a maker assigned them.
std::size_t NameLength(std::string_view text, std::size_t place) {
  constexpr std::size_t kDigits = 16;
  if (text[place] != '5') return 0;
  const std::string_view digits = text.substr(place, kDigits);
  const bool continues = place + kDigits < text.size() && IsWord(text[place + kDigits]);
  return digits.size() == kDigits && !continues && std::ranges::all_of(digits, IsHex) ? kDigits : 0;
}

// The address around an "@", but no text before begin.
Span MailAround(std::string_view text, std::size_t at, std::size_t begin) {
  std::size_t first = at;
  while (first > begin && IsOfUser(text[first - 1])) --first;
  std::size_t end = at + 1;
  while (end < text.size() && IsOfHost(text[end])) ++end;
  while (end > at + 1 && !IsWord(text[end - 1])) --end;  // the end of a sentence
  return first == at || end == at + 1 ? Span{} : Span{first, end - first};
}

bool BeginsWord(std::string_view text, std::size_t place) {
  if (!IsWord(text[place])) return false;
  if (place == 0 || !IsWord(text[place - 1])) return true;
  return place >= 2 && text[place - 1] == 'x' && text[place - 2] == '0';  // 0x5000...
}

}  // namespace

std::vector<Span> FindAddresses(std::string_view text) {
  std::vector<Span> found;
  std::size_t begin = 0;  // of the text after the last address
  for (std::size_t place = 0; place < text.size(); ++place) {
    Span span;
    if (text[place] == '@') {
      span = MailAround(text, place, begin);
    } else if (BeginsWord(text, place)) {
      span = {place, std::max(PairsLength(text, place), NameLength(text, place))};
    }
    if (span.length == 0) continue;
    found.push_back(span);
    begin = span.begin + span.length;
    place = begin - 1;
  }
  return found;
}

}  // namespace hxahost
