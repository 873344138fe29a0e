#include "host/hxahost/bundle/addresses.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <system_error>

#include "host/hxahost/bundle/folded_text.h"

namespace hxahost {

namespace {

bool IsHex(char character) { return std::isxdigit(static_cast<unsigned char>(character)) != 0; }
bool IsLetter(char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; }
bool IsWord(char character) { return std::isalnum(static_cast<unsigned char>(character)) != 0; }
bool IsOfMailWord(char character) { return IsWord(character) || static_cast<unsigned char>(character) >= 0x80; }
bool IsOfUser(char character) {
  return IsOfMailWord(character) || std::string_view("._%+-").find(character) != std::string_view::npos;
}
bool IsOfHost(char character) {
  return IsOfMailWord(character) || std::string_view("._-").find(character) != std::string_view::npos;
}

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

// How many hexadecimal digits there are, up to one more than wanted.
std::size_t HexDigits(std::string_view text, std::size_t place, std::size_t wanted) {
  const std::string_view digits = text.substr(std::min(place, text.size()), wanted + 1);
  return static_cast<std::size_t>(std::ranges::find_if_not(digits, IsHex) - digits.begin());
}

// Whether so many hexadecimal digits are a word at the place.
bool IsHexWord(std::string_view text, std::size_t place, std::size_t digits) {
  return HexDigits(text, place, digits) == digits && (place + digits == text.size() || !IsWord(text[place + digits]));
}

// Removes the last word of the text, and returns it in lower case. What is not a letter ends it.
std::string TakeLastWord(std::string_view& text) {
  while (!text.empty() && !IsLetter(text.back())) text.remove_suffix(1);
  std::size_t begin = text.size();
  while (begin > 0 && IsLetter(text[begin - 1])) --begin;
  std::string word = FoldCase(text.substr(begin));
  text = text.substr(0, begin);
  return word;
}

// What is before the place on its line, as far as it matters.
std::string_view TextBefore(std::string_view text, std::size_t place) {
  constexpr std::size_t kFarthest = 60;
  const std::size_t begin = place > kFarthest ? place - kFarthest : 0;
  const std::string_view before = text.substr(begin, place - begin);
  return before.substr(before.rfind('\n') + 1);
}

// "MAC 001B21AABBCC", "MAC address: 001B21AABBCC"
bool IsAfterMac(std::string_view text, std::size_t place) {
  std::string_view before = TextBefore(text, place);
  std::string word = TakeLastWord(before);
  if (word == "address" || word == "addr") word = TakeLastWord(before);
  return word == "mac";
}

// "eui.00253858910A1B2C", "naa.3000C5001A2B3C4D"
bool IsAfterNameType(std::string_view text, std::size_t place) {
  constexpr std::size_t kLength = 4;
  if (place < kLength) return false;
  const std::string type = FoldCase(text.substr(place - kLength, kLength));
  return type == "eui." || type == "naa.";
}

// "5000C5001A2B3C4D", "600508B1001C79A1600508B1001C79A2": the first digit says that a maker gave them, and how many.
// For others a word before them does.
std::size_t NameLength(std::string_view text, std::size_t place) {
  constexpr std::size_t kMac = 12;
  constexpr std::size_t kShortName = 16;
  constexpr std::size_t kLongName = 32;
  const bool isShort = IsHexWord(text, place, kShortName);
  const bool isLong = IsHexWord(text, place, kLongName);
  if ((isShort || isLong) && IsAfterNameType(text, place)) return isShort ? kShortName : kLongName;
  if (isShort && text[place] == '5') return kShortName;
  if (isLong && text[place] == '6') return kLongName;
  return IsHexWord(text, place, kMac) && IsAfterMac(text, place) ? kMac : 0;
}

// "5000-C500-1A2B-3C4D": the length of groups of four hexadecimal digits; 0 if a word follows.
std::size_t GroupsLength(std::string_view text, std::size_t place, std::size_t groups, char separator) {
  constexpr std::size_t kDigits = 4;
  std::size_t end = place;
  for (std::size_t group = 0; group < groups; ++group, end += kDigits) {
    if (group > 0 && (end == text.size() || text[end++] != separator)) return 0;
    if (HexDigits(text, end, kDigits) < kDigits) return 0;
  }
  return end < text.size() && IsWord(text[end]) ? 0 : end - place;
}

// "001b.21aa.bbcc", which would be a number with digits alone; "5000-C500-1A2B-3C4D", or eight groups after a 6.
std::size_t GroupedLength(std::string_view text, std::size_t place) {
  constexpr std::size_t kOfMac = 3;
  const std::size_t ofName = text[place] == '5' ? 4 : text[place] == '6' ? 8 : 0;
  const std::size_t mac = GroupsLength(text, place, kOfMac, '.');
  if (std::ranges::any_of(text.substr(place, mac), IsLetter)) return mac;
  return GroupsLength(text, place, ofName, '-');
}

// Whether the word before the place, on its line, says that a version follows.
bool IsAfterVersionWord(std::string_view text, std::size_t place) {
  constexpr std::string_view kWords[] = {"version", "versions", "firmware", "bios", "driver",   "boot", "block",
                                         "flash",   "build",    "release",  "rev",  "revision", "ver",  "v"};
  std::string_view before = TextBefore(text, place);
  return std::ranges::count(kWords, TakeLastWord(before)) > 0;
}

// "10.20.30.40": four numbers up to 255.
std::size_t Ip4Length(std::string_view text, std::size_t place) {
  constexpr std::size_t kParts = 4;
  constexpr unsigned kGreatest = 255;
  if (place >= 2 && text[place - 1] == '.' && IsWord(text[place - 2])) return 0;  // the end of something longer
  const char* end = text.data() + place;
  const char* const last = text.data() + text.size();
  for (std::size_t part = 0; part < kParts; ++part) {
    if (part > 0 && (end == last || *end++ != '.')) return 0;
    unsigned number = 0;
    const auto [next, failure] = std::from_chars(end, last, number);
    if (failure != std::errc() || number > kGreatest || next - end > 3) return 0;
    end = next;
  }
  const bool continues = end != last && (IsWord(*end) || (*end == '.' && end + 1 != last && IsWord(end[1])));
  return continues || IsAfterVersionWord(text, place) ? 0 : static_cast<std::size_t>(end - text.data()) - place;
}

// "fe80::21b:21ff:feaa:bbcc", "::ffff:10.20.30.40": eight groups of up to four hexadecimal digits, of which the last
// two may be written as an IPv4 address, or at least two groups with "::" for the others.
std::size_t Ip6Length(std::string_view text, std::size_t place) {
  constexpr std::size_t kGroups = 8;
  constexpr std::size_t kDigits = 4;
  if (place >= 2 && text[place - 1] == ':' && IsHex(text[place - 2])) return 0;  // the end of something longer
  std::size_t groups = 0;
  std::size_t end = place;
  bool isShort = text.substr(place).starts_with("::");
  for (std::size_t next = isShort ? place + 2 : place; HexDigits(text, next, kDigits) > 0 && groups <= kGroups;
       ++groups) {
    if (const std::size_t ip4 = Ip4Length(text, next); ip4 > 0) {
      end = next + ip4;
      groups += 2;
      break;
    }
    end = next + HexDigits(text, next, kDigits);
    if (end - next > kDigits || !text.substr(end).starts_with(':')) {
      next = text.size();
    } else {
      const bool isDouble = text.substr(end).starts_with("::");
      isShort = isShort || isDouble;
      next = end + (isDouble ? 2 : 1);
    }
  }
  const bool continues = end < text.size() && IsWord(text[end]);
  const bool isWhole = isShort ? groups >= 2 && groups < kGroups : groups == kGroups;
  return isWhole && !continues ? end - place : 0;
}

// The address around an "@", but no text before begin.
Span MailAround(std::string_view text, std::size_t at, std::size_t begin) {
  std::size_t first = at;
  while (first > begin && IsOfUser(text[first - 1])) --first;
  std::size_t end = at + 1;
  while (end < text.size() && IsOfHost(text[end])) ++end;
  while (end > at + 1 && !IsOfMailWord(text[end - 1])) --end;  // the end of a sentence
  return first == at || end == at + 1 ? Span{} : Span{first, end - first};
}

bool BeginsWord(std::string_view text, std::size_t place) {
  if (text.substr(place).starts_with("::")) return place == 0 || !IsWord(text[place - 1]);
  if (!IsWord(text[place])) return false;
  if (place == 0 || !IsWord(text[place - 1])) return true;
  return place >= 2 && (text[place - 1] == 'x' || text[place - 1] == 'X') && text[place - 2] == '0';  // 0x5000...
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
      span = {place, std::max({PairsLength(text, place), NameLength(text, place), GroupedLength(text, place),
                               Ip4Length(text, place), Ip6Length(text, place)})};
    }
    if (span.length == 0) continue;
    found.push_back(span);
    begin = span.begin + span.length;
    place = begin - 1;
  }
  return found;
}

}  // namespace hxahost
