#include "collect/tool_text.h"
#include "collect/ascii_text.h"

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
  const std::size_t label = line.find(kDeviceTypeLabel);
  if (label == line.npos) return {};
  // "a Hard drive", but "an Enclosure services device".
  const std::size_t articleRest = Contains(line, "Enclosure") ? 2 : 1;
  return UpToLineEnd(line, label + kDeviceTypeLabel.size() + articleRest);
}

std::string_view CutDeviceName(std::string_view line) {
  constexpr std::size_t kNameLength = 12;
  return line.substr(line.find(kDeviceNumberLabel), kNameLength);
}

void Join(std::string& text, std::string_view separator, std::string_view part) {
  text.resize(TrimEnd(text, kBlanksAndLineEnds).size());
  text.append(separator).append(TrimStart(part, " "));
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
