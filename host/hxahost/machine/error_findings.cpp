#include "host/hxahost/machine/error_findings.h"

#include <chrono>
#include <cstdint>
#include <optional>

#include <fmt/core.h>

#include "host/hxahost/machine/device_names.h"
#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

constexpr Meaning kHardErrors = {"it cannot read or write some sectors", "plan to replace the disk", Effect::kErrors};
constexpr Meaning kSoftErrors = {"it corrects many errors", "watch the disk, and plan to replace it", Effect::kErrors};
constexpr Meaning kParityErrors = {"transfers to the disk fail", "check the cable, the terminator and the backplane",
                                   Effect::kErrors};
constexpr Meaning kNoCount = {"its count of errors is not a number", "run the utility by hand"};
constexpr Meaning kNoPeriod = {"its transfer period is not a number", "run the utility by hand"};
constexpr Meaning kSlow = {"the disk transfers slower than it can", "check the cable and the backplane",
                           Effect::kErrors};
constexpr Meaning kBatteryMessage = {"the log reports the battery of the cache", "check the battery", Effect::kBattery};

bool Reaches(std::uint64_t count, unsigned limit) { return count >= limit && count > 0; }

// A text that a utility printed in place of a number.
bool IsNoNumber(const std::string& text) { return !text.empty() && !ReadCount(text); }

Finding OfInstance(const InstanceList& instances, std::size_t place, Severity severity, std::string_view property,
                   const Meaning& meaning) {
  const TPublishedInstance& instance = *instances[place];
  return {severity,
          std::string(instance.Class().name),
          IdentifierOf(instance),
          NameOf(instance, ""),
          std::string(property),
          RawText(instance, property),
          meaning,
          place};
}

struct Counter {
  std::string_view property;
  std::optional<unsigned> Limits::*limit;
  const Meaning& meaning;
};

constexpr Counter kCounters[] = {
    {"NumHardErrors",   &Limits::hardErrors,   kHardErrors  },
    {"NumSoftErrors",   &Limits::softErrors,   kSoftErrors  },
    {"NumParityErrors", &Limits::parityErrors, kParityErrors},
};

void AddCounters(const InstanceList& instances, std::size_t place, const Limits& limits, Findings& findings) {
  for (const Counter& counter : kCounters) {
    const std::optional<unsigned> limit = limits.*counter.limit;
    if (!limit) continue;
    const std::string text = RawText(*instances[place], counter.property);
    if (IsNoNumber(text)) {
      findings.push_back(OfInstance(instances, place, Severity::kUnknown, counter.property, kNoCount));
    } else if (Reaches(ReadCount(text).value_or(0), *limit)) {
      findings.push_back(OfInstance(instances, place, Severity::kWarning, counter.property, counter.meaning));
    }
  }
}

// The values are periods: a longer one is slower.
void AddTransfer(const InstanceList& instances, std::size_t place, const Limits& limits, Findings& findings) {
  constexpr std::string_view kCurrent = "Cur_Txer_p";
  constexpr std::string_view kShortest = "Max_Txer_P";
  if (!limits.slowTransfer) return;
  for (const std::string_view property : {kCurrent, kShortest}) {
    if (!IsNoNumber(RawText(*instances[place], property))) continue;
    findings.push_back(OfInstance(instances, place, Severity::kUnknown, property, kNoPeriod));
  }
  const auto current = ReadCount(RawText(*instances[place], kCurrent));
  const auto shortest = ReadCount(RawText(*instances[place], kShortest));
  if (!current || !shortest || *current < *shortest || !Reaches(*current - *shortest, *limits.slowTransfer)) return;
  findings.push_back(OfInstance(instances, place, Severity::kWarning, kCurrent, kSlow));
}

// "2026-03-05 12:30:15 +01:00".
std::optional<std::chrono::sys_days> DayOf(const std::string& time) {
  constexpr std::size_t kYear = 4;
  constexpr std::size_t kDay = 10;
  if (time.size() < kDay || time[kYear] != '-') return std::nullopt;
  using namespace std::chrono;
  const auto number = [&](std::size_t first, std::size_t length) {
    return static_cast<int>(ReadCount(std::string_view(time).substr(first, length)).value_or(0));
  };
  const year_month_day date{year(number(0, kYear)), month(static_cast<unsigned>(number(5, 2))),
                            day(static_cast<unsigned>(number(8, 2)))};
  return date.ok() ? std::optional(sys_days(date)) : std::nullopt;
}

bool IsRecent(const std::string& event, const std::string& now, std::optional<unsigned> days) {
  const auto then = DayOf(event);
  const auto today = DayOf(now);
  return days && then && today && (*today - *then).count() <= std::int64_t{*days};
}

void AddBatteryMessage(const InstanceList& instances, std::size_t place, const QueryHeader& header,
                       Findings& findings) {
  const TPublishedInstance& event = *instances[place];
  if (!IsBatteryMessage(header, event)) return;
  const std::string time = ShownText(event, "MessageTimestamp");
  Finding finding = OfInstance(instances, place, Severity::kWarning, "Message", kBatteryMessage);
  finding.identifier = RawText(event, "RecordID");
  finding.name = "RAID manager, " + time.substr(0, time.find(' '));
  findings.push_back(std::move(finding));
}

}  // namespace

bool IsBatteryMessage(const QueryHeader& header, const TPublishedInstance& event) {
  if (RawText(event, "Severity") == "INF") return false;
  if (Lower(RawText(event, "Message")).find("battery") == std::string::npos) return false;
  return IsRecent(ShownText(event, "MessageTimestamp"), ReadableTime(header.time.ToString()),
                  header.limits.batteryDays);
}

Findings ErrorFindings(const QueryHeader& header, const InstanceList& instances) {
  Findings findings;
  for (std::size_t place = 0; place < instances.size(); ++place) {
    const std::string_view className = instances[place]->Class().name;
    if (className == kDeviceErrorsClass) AddCounters(instances, place, header.limits, findings);
    if (className == kTransferClass) AddTransfer(instances, place, header.limits, findings);
    if (className == kEventClass) AddBatteryMessage(instances, place, header, findings);
  }
  return findings;
}

}  // namespace hxahost
