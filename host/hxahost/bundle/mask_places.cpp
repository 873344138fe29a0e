#include "host/hxahost/bundle/mask_places.h"

#include <algorithm>
#include <string>

#include "host/hxahost/bundle/folded_text.h"
#include "host/hxahost/text/ascii.h"

namespace hxahost {

namespace {

enum class LabelPlace {
  kAnywhere,  // in a line with a sign after it, as parsers find it with a colon
  kAtFirst,   // before the first colon, or equals sign if none: it is also a part of values ("Serial ATA")
};

struct MaskedLabel {
  std::string_view label;  // in lower case; a line has it in any case
  LabelPlace place = LabelPlace::kAnywhere;
  std::size_t from = 0;      // characters after the sign that are left
  std::size_t shortest = 1;  // shorter values are left
  MaskScope scope = MaskScope::kNames;
};

constexpr auto kAnywhere = LabelPlace::kAnywhere;
constexpr auto kAtFirst = LabelPlace::kAtFirst;
constexpr auto kNames = MaskScope::kNames;
constexpr auto kAll = MaskScope::kAll;

constexpr std::string_view kIdentifier = "device id";

// Values that name an object permanently, or that people chose. Not masked: vendors, models, sizes, states, versions
// ("EC Version#" too), part numbers of whole controllers, slots, channels, and the letters of arrays, which the tool
// assigns. In the identifier of a device the serial number follows model and firmware; its first character is the last
// one of the firmware, and is not masked.
constexpr MaskedLabel kLabels[] = {
    {"controller serial number", kAnywhere, 0,  1, kNames},
    {"serial number",            kAnywhere, 0,  1, kNames},
    {"serial",                   kAtFirst,  0,  1, kNames},
    {"world-wide name",          kAnywhere, 0,  1, kNames},
    {"fru",                      kAtFirst,  0,  1, kAll  }, // of devices, "Controller FRU", "Battery FRU"
    {"vpd assigned",             kAnywhere, 0,  1, kNames},
    {"controller name",          kAnywhere, 0,  1, kNames},
    {"logical drive name",       kAnywhere, 0,  1, kNames},
    {"array name",               kAnywhere, 0,  1, kNames},
    {"enclosure id",             kAnywhere, 0,  5, kNames}, // "0" is a place, "5000F0A0001B4000" a permanent name
    {kIdentifier,                kAnywhere, 21, 1, kNames}, // " TALVERA T36LW10 S96H8B01234"
};

// Values that tools print if there is none.
constexpr std::string_view kNoValues[] = {"None", "N/A", "Not Available", "Not Applicable", "Unknown"};

constexpr std::string_view kSpaceInLine = " \t\r";
constexpr std::string_view kSigns = ":=";  // between a label and its value
constexpr std::string_view kDeviceType = "Device is a";
constexpr std::string_view kTape = "Tape";
constexpr char kLogEntry = '[';  // "[00004] 0005:17:54:33 SAS phy 8: device timeout, reset 1 of 3"

// Calls back with each line, without its line feed, and where it begins.
template <class Call>
void ForEachLine(std::string_view text, const Call& call) {
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    call(text.substr(begin, end - begin), begin);
    begin = end + 1;
  }
}

// The span without the white space around it; its length is 0 if nothing remains.
Span TrimmedSpan(std::string_view text, std::size_t begin, std::size_t end) {
  while (begin < end && kSpaceInLine.find(text[begin]) != kSpaceInLine.npos) ++begin;
  while (end > begin && kSpaceInLine.find(text[end - 1]) != kSpaceInLine.npos) --end;
  return {begin, end - begin};
}

// Whether the sign is the one of an attribute: its value is quoted.
bool IsOfAttribute(std::string_view line, std::size_t sign) {
  if (sign == line.npos || line[sign] != '=') return false;
  const std::size_t value = line.find_first_not_of(kSpaceInLine, sign + 1);
  return value != line.npos && (line[value] == '"' || line[value] == '\'');
}

// A label in a line, and the sign after it.
struct Label {
  const MaskedLabel* row = nullptr;
  std::size_t begin = 0;
  std::size_t sign = 0;
};

// The labels of a line that have a sign, in their order; one for each sign.
std::vector<Label> LabelsOf(std::string_view line, MaskScope scope) {
  std::size_t sign = line.find_first_of(kSigns);
  std::vector<Label> found;
  if (sign == line.npos) return found;
  const std::string lower = Lower(line);
  const std::size_t colon = line.find(':');
  const std::size_t first = colon == line.npos ? sign : colon;
  for (const MaskedLabel& row : kLabels) {
    if (row.scope > scope) continue;
    const std::string_view searched = std::string_view(lower).substr(0, row.place == kAtFirst ? first : line.size());
    for (std::size_t begin = searched.find(row.label); begin != line.npos;
         begin = searched.find(row.label, begin + row.label.size())) {
      found.push_back({&row, begin, 0});
    }
  }
  std::ranges::stable_sort(found, {}, &Label::begin);
  std::vector<Label> labels;
  for (Label& label : found) {
    if (sign < label.begin) sign = line.find_first_of(kSigns, label.begin);
    if (sign == line.npos) break;
    if (label.row->place == kAtFirst && IsOfAttribute(line, sign)) continue;
    label.sign = sign;
    if (labels.empty() || labels.back().sign != sign) labels.push_back(label);
  }
  return labels;
}

// A value to be masked, and the place of the first text in its line.
struct LabelledValue {
  Span value;
  std::size_t first = 0;
};

// A tape's identifier ends with its firmware alone: there are blanks before it.
bool IsOfTape(std::string_view identifier, std::string_view deviceType) {
  constexpr std::size_t kFirmwareEnd = 20;
  return deviceType.find(kTape) != deviceType.npos && identifier.substr(0, kFirmwareEnd + 1).ends_with(' ');
}

// The values of a line to be masked, by their labels. Each ends where the next label begins.
std::vector<LabelledValue> ValuesToMask(std::string_view line, std::string_view deviceType, MaskScope scope) {
  const std::vector<Label> labels = LabelsOf(line, scope);
  std::vector<LabelledValue> values;
  for (std::size_t index = 0; index < labels.size(); ++index) {
    const auto& [row, begin, sign] = labels[index];
    const std::size_t end = index + 1 < labels.size() ? labels[index + 1].begin : line.size();
    if (row->label == kIdentifier && IsOfTape(line.substr(sign + 1), deviceType)) continue;
    const Span value = TrimmedSpan(line, std::min(sign + 1 + row->from, end), end);
    const bool isNone = std::ranges::count(kNoValues, line.substr(value.begin, value.length)) > 0;
    if (value.length >= row->shortest && !isNone) values.push_back({value, line.find_first_not_of(kSpaceInLine)});
  }
  return values;
}

// A value may be wrapped: its continuation line begins after the column of the line's label and has no label of its
// own, unless it is below the value.
Span WrappedValue(std::string_view line, const LabelledValue& before) {
  const Span value = TrimmedSpan(line, 0, line.size());
  const bool isBelowValue = value.begin >= before.value.begin;
  const bool isAfterLabel = value.begin > before.first && line.find(':') == line.npos;
  return before.value.length > 0 && (isBelowValue || isAfterLabel) ? value : Span{};
}

bool IsBlankOrEquals(char character) { return character == '=' || character == ' ' || character == '\t'; }

// Whether the text before a quotation mark is "serialNumber=" or "serialNumber = ".
bool NamesSerial(std::string_view before) {
  constexpr std::string_view kName = "serialnumber";
  while (!before.empty() && IsBlankOrEquals(before.back())) before.remove_suffix(1);
  return before.size() >= kName.size() && FoldCase(before.substr(before.size() - kName.size())) == kName;
}

// "<event text="..." />": its values are quoted. A label in "< Serial number : NV3" is found all the same.
bool IsElement(std::string_view line) {
  const std::size_t first = line.find_first_not_of(kSpaceInLine);
  return first != line.npos && line[first] == '<' && IsOfAttribute(line, line.find_first_of(kSigns));
}

// "<deadDrive serialNumber="NV3LE77Q2H" failureReason='device not responding' />": every quoted text is prose.
void AddAttributes(std::string_view line, std::size_t begin, SecretPlaces& places) {
  std::size_t quote = line.find_first_of("\"'");
  while (quote != line.npos) {
    const std::size_t end = line.find(line[quote], quote + 1);
    if (end == line.npos) return;
    const Span value{begin + quote + 1, end - quote - 1};
    const bool isSerial = NamesSerial(line.substr(0, quote)) && value.length > 0;
    (isSerial ? places.secrets : places.prose).push_back(value);
    quote = line.find_first_of("\"'", end + 1);
  }
}

}  // namespace

SecretPlaces FindInToolText(std::string_view text, MaskScope scope) {
  SecretPlaces places;
  std::string_view deviceType;
  LabelledValue before;
  ForEachLine(text, [&](std::string_view line, std::size_t begin) {
    if (const std::size_t type = line.find(kDeviceType); type != line.npos) deviceType = line.substr(type);
    const std::size_t first = line.find_first_not_of(kSpaceInLine);
    const char start = first == line.npos ? ' ' : line[first];
    if (start == kLogEntry) places.prose.push_back({begin, line.size()});
    if (start == '<' || start == 's' || start == 'S' || start == kLogEntry) AddAttributes(line, begin, places);
    const std::vector<LabelledValue> values =
        IsElement(line) ? std::vector<LabelledValue>() : ValuesToMask(line, deviceType, scope);
    for (const auto& [value, place] : values) places.secrets.push_back({begin + value.begin, value.length});
    const Span wrapped = values.empty() && start != '<' ? WrappedValue(line, before) : Span{};
    if (wrapped.length > 0) places.secrets.push_back({begin + wrapped.begin, wrapped.length});
    if (wrapped.length == 0) before = values.empty() ? LabelledValue{} : values.back();
  });
  std::ranges::sort(places.secrets, {}, &Span::begin);
  return places;
}

// "2007/03/06 08:00:01 PST <tab> INF <tab> DBSERVER <tab> The agent has started."
SecretPlaces FindInRaidLog(std::string_view text, MaskScope scope) {
  SecretPlaces places;
  ForEachLine(text, [&](std::string_view line, std::size_t begin) {
    const std::size_t severity = line.find('\t');
    const std::size_t machine = severity == line.npos ? line.npos : line.find('\t', severity + 1);
    const std::size_t message = machine == line.npos ? line.npos : line.find('\t', machine + 1);
    const bool hasColumns = message != line.npos;
    const Span name = hasColumns ? TrimmedSpan(line, machine + 1, message) : Span{};
    if (name.length > 0) places.secrets.push_back({begin + name.begin, name.length});
    if (hasColumns) places.prose.push_back({begin + message, line.size() - message});
    for (const auto& [value, first] : ValuesToMask(line, "", scope)) {
      if (!hasColumns || value.begin > message) places.secrets.push_back({begin + value.begin, value.length});
    }
  });
  return places;
}

}  // namespace hxahost
