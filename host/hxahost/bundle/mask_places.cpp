#include "host/hxahost/bundle/mask_places.h"

#include <algorithm>

#include "host/hxahost/bundle/text_mask.h"

namespace hxahost {

namespace {

struct MaskedLabel {
  std::string_view label;     // the line begins with it, after blanks
  std::size_t from = 0;       // characters after the colon that are left
  std::size_t shortest = 1;   // shorter values are left
  std::string_view ofDevice;  // only of devices whose type contains this
  MaskScope scope = MaskScope::kNames;
};

constexpr auto kNames = MaskScope::kNames;
constexpr auto kAll = MaskScope::kAll;

// Values that name an object permanently, or that people chose. Not masked: vendors, models, sizes, states, versions
// ("EC Version#" too), part numbers of whole controllers, slots, channels, and the letters of arrays, which the tool
// assigns. In the identifier of a hard disk the serial number follows model and firmware; its first character is the
// last one of the firmware, and is not masked. Other devices have no serial number there.
constexpr MaskedLabel kLabels[] = {
    {"Controller Serial Number", 0,  1, "",          kNames},
    {"Serial",                   0,  1, "",          kNames}, // number
    {"World-wide name",          0,  1, "",          kNames},
    {"FRU",                      0,  1, "",          kAll  }, // and part number
    {"Controller FRU",           0,  1, "",          kAll  },
    {"Battery FRU",              0,  1, "",          kAll  },
    {"VPD Assigned",             0,  1, "",          kNames},
    {"Controller name",          0,  1, "",          kNames},
    {"Logical drive name",       0,  1, "",          kNames},
    {"Array name",               0,  1, "",          kNames},
    {"Enclosure ID",             0,  5, "",          kNames}, // "0" is a place, "5000F0A0001B4000" a permanent name
    {"Device ID",                21, 1, "Hard disk", kNames}, // " TALVERA T36LW10 S96H8B01234"
};

// Values that tools print if there is none.
constexpr std::string_view kNoValues[] = {"None", "N/A", "Not Available", "Not Applicable", "Unknown"};

constexpr std::string_view kSpaceInLine = " \t\r";
constexpr std::string_view kDeviceType = "Device is a";
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

// A value to be masked, and the place of its label in the line.
struct LabelledValue {
  Span value;
  std::size_t label = 0;
};

// The value of a line to be masked, by its label; its length is 0 if the line has none.
LabelledValue ValueToMask(std::string_view line, std::string_view deviceType, MaskScope scope) {
  const std::size_t first = line.find_first_not_of(kSpaceInLine);
  const std::size_t colon = line.find(':');
  if (first == line.npos || colon == line.npos) return {};
  const std::string_view label = line.substr(first, std::max(colon, first) - first);
  for (const MaskedLabel& row : kLabels) {
    if (row.scope > scope || !label.starts_with(row.label) || deviceType.find(row.ofDevice) == deviceType.npos)
      continue;
    const Span value = TrimmedSpan(line, std::min(colon + 1 + row.from, line.size()), line.size());
    const bool isNone = std::ranges::count(kNoValues, line.substr(value.begin, value.length)) > 0;
    return value.length < row.shortest || isNone ? LabelledValue{} : LabelledValue{value, first};
  }
  return {};
}

// A value may be wrapped: its continuation line begins after the label's column and has no label of its own, unless it
// is below the value.
Span WrappedValue(std::string_view line, const LabelledValue& before) {
  const Span value = TrimmedSpan(line, 0, line.size());
  const bool isBelowValue = value.begin >= before.value.begin;
  const bool isAfterLabel = value.begin > before.label && line.find(':') == line.npos;
  return before.value.length > 0 && (isBelowValue || isAfterLabel) ? value : Span{};
}

bool IsBlankOrEquals(char character) { return character == '=' || character == ' ' || character == '\t'; }

// Whether the text before a quotation mark is "serialNumber=" or "serialNumber = ".
bool NamesSerial(std::string_view before) {
  constexpr std::string_view kName = "serialnumber";
  while (!before.empty() && IsBlankOrEquals(before.back())) before.remove_suffix(1);
  return before.size() >= kName.size() && FoldCase(before.substr(before.size() - kName.size())) == kName;
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
    if (start == '<' || start == 's' || start == kLogEntry) AddAttributes(line, begin, places);
    const LabelledValue labelled = ValueToMask(line, deviceType, scope);
    const Span value = labelled.value.length > 0 ? labelled.value : WrappedValue(line, before);
    if (value.length > 0 && start != '<') places.secrets.push_back({begin + value.begin, value.length});
    if (labelled.value.length > 0 || value.length == 0) before = labelled;
  });
  return places;
}

// "2007/03/06 08:00:01 PST <tab> INF <tab> DBSERVER <tab> The agent has started."
SecretPlaces FindInRaidLog(std::string_view text) {
  SecretPlaces places;
  ForEachLine(text, [&](std::string_view line, std::size_t begin) {
    const std::size_t severity = line.find('\t');
    const std::size_t machine = severity == line.npos ? line.npos : line.find('\t', severity + 1);
    const std::size_t message = machine == line.npos ? line.npos : line.find('\t', machine + 1);
    if (message == line.npos) return;
    const Span name = TrimmedSpan(line, machine + 1, message);
    if (name.length > 0) places.secrets.push_back({begin + name.begin, name.length});
    places.prose.push_back({begin + message, line.size() - message});
  });
  return places;
}

}  // namespace hxahost
