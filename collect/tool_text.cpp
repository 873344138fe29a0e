#include "collect/tool_text.h"

#include <algorithm>
#include <limits>

namespace {

std::string_view UpToLineEnd(std::string_view line, std::size_t begin) {
  if (begin >= line.size()) return {};
  const std::string_view rest = line.substr(begin);
  const std::size_t carriageReturn = rest.find('\r');
  return rest.substr(0, carriageReturn == rest.npos ? rest.find('\n') : carriageReturn);
}

// As the C library's isspace in the C locale.
bool IsWhiteSpace(char character) {
  return static_cast<unsigned char>(character) <= ' ' && (character == ' ' || (character >= '\t' && character <= '\r'));
}

}  // namespace

std::string_view CutLogicalDriveNumber(std::string_view line, std::string_view label) {
  constexpr std::size_t kLabelAndBlank = 21;
  return UpToLineEnd(line, line.find(label) + kLabelAndBlank);
}

std::string_view CutDeviceType(std::string_view line) {
  constexpr std::string_view kLabel = "Device is a";
  const std::size_t label = FindInLine(line, kLabel);
  if (label == line.npos) return {};
  // "a Hard drive", but "an Enclosure services device".
  const std::size_t articleRest = Contains(line, "Enclosure") ? 2 : 1;
  return UpToLineEnd(line, label + kLabel.size() + articleRest);
}

std::string_view CutDeviceName(std::string_view line) {
  constexpr std::size_t kNameLength = 12;
  return line.substr(FindInLine(line, kDeviceNumberLabel), kNameLength);
}

std::string Joined(std::string_view text, std::string_view separator, std::string_view part) {
  const std::size_t last = text.find_last_not_of(" \t\r\n");
  const std::size_t first = part.find_first_not_of(' ');
  const std::string_view head = text.substr(0, last == text.npos ? 0 : last + 1);
  const std::string_view tail = first == part.npos ? std::string_view() : part.substr(first);
  std::string joined;
  joined.reserve(head.size() + separator.size() + tail.size());
  joined.append(head).append(separator).append(tail);
  return joined;
}

int LeadingNumber(std::string_view text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end && IsWhiteSpace(*at)) ++at;
  const bool isNegative = at != end && *at == '-';
  if (at != end && (*at == '-' || *at == '+')) ++at;
  // atoi leaves open what a number past its range gives, and platforms differ; this keeps to the nearest one.
  constexpr long long kLowest = std::numeric_limits<int>::min();
  constexpr long long kHighest = std::numeric_limits<int>::max();
  long long number = 0;
  for (; at != end; ++at) {
    const unsigned digit = static_cast<unsigned char>(*at) - unsigned{'0'};
    if (digit > 9) break;
    if (number <= kHighest) number = number * 10 + digit;
  }
  return static_cast<int>(std::clamp(isNegative ? -number : number, kLowest, kHighest));
}
