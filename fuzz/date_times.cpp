// Texts of dates and times, and versions: each text of the input is read as one.
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "fuzz/support/fuzzer.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "host/hxahost/result/property_values.h"
#include "logs/raid_mgr_event_time.h"
#include "logs/raid_mgr_fields.h"
#include "logs/raid_mgr_zones.h"
#include "plugin/host_interface/date_time.h"
#include "plugin/host_interface/exception.h"
#include "publish/version_split.h"

using NKVRHXA20::TCIMDateTime;

namespace {

void TryCimText(const std::string& text) {
  try {
    const std::string shown = TCIMDateTime(text).ToString();
    const bool isMinusNull = text.ends_with("-000");  // the same time as "+000"
    Require(shown == text || isMinusNull, "a valid time is shown unchanged", text);
    Require(TCIMDateTime(shown).ToString() == shown, "a shown time is valid", text);
  } catch (const NKVRHXA20::THXAException&) {
    // An invalid text is rejected.
  }
  hxahost::ReadableTime(text);
}

std::string_view FirstField(const std::string& line) {
  using namespace std::string_view_literals;
  return std::string_view(line).substr(0, line.find_first_of("\t\0"sv));
}

void TryLogLine(const std::string& line) {
  const auto fields = SplitFields(line);
  const auto time = ReadEventTime(line, fields.front());
  const auto again = ReadEventTime(line, fields.front());
  Require(time.has_value() == again.has_value(), "the same line produces the same time");
  if (time) Require(time->ToString() == again->ToString(), "the same line produces the same time", line);
  Require(fields.front() == FirstField(line), "the first field ends at the first tab or NUL");
  std::size_t length = fields.size() - 1;
  for (const std::string_view field : fields) {
    Require(field.find('\t') == field.npos && field.find('\0') == field.npos, "a tab ends a field", field);
    length += field.size();
  }
  Require(length <= line.size() + fields.size() - 1, "fields do not overlap", line);
  Require(MonthNumber(line) <= 12, "there are twelve months", line);
  const VersionAndBuild parts = SplitVersion(line);
  Require(line.find(parts.version) != line.npos, "a version is part of its text", line);
  Require(line.find(parts.build) != line.npos, "a build is part of its text", line);
  const int hours = HoursFromUtc(line);
  Require(hours >= -12 && hours <= 14, "no zone is further from UTC", line);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  for (const std::string& text : Split(AsText(data, size), kSeparator)) {
    TryCimText(text);
    TryLogLine(text);
  }
  return 0;
}
