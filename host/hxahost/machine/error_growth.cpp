#include "host/hxahost/machine/error_growth.h"

#include <cstdint>
#include <string_view>

#include <fmt/core.h>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"

namespace hxahost {

namespace {

constexpr Meaning kGrowing = {"it continues to report errors", "plan to replace the disk", Effect::kErrors};

struct Counter {
  std::uint64_t ErrorCounts::*count;
  std::optional<unsigned> Limits::*limit;  // null: growth is not a fault
  std::string_view property;
  std::string_view what;
};

constexpr Counter kCounters[] = {
    {&ErrorCounts::hard,   &Limits::hardErrors,   "NumHardErrors",   "hard errors"  },
    {&ErrorCounts::soft,   &Limits::softErrors,   "NumSoftErrors",   "soft errors"  },
    {&ErrorCounts::parity, &Limits::parityErrors, "NumParityErrors", "parity errors"},
    {&ErrorCounts::other,  nullptr,               "Misc",            "other errors" },
};

// " (2.5 a day)"; "" if the times are unknown or not in order.
std::string RateText(std::uint64_t errors, const std::string& before, const std::string& now) {
  constexpr double kSecondsOfDay = 24 * 60 * 60;
  const auto from = SecondsSince1970(before);
  const auto to = SecondsSince1970(now);
  if (!from || !to || *to <= *from) return "";
  const double rate = static_cast<double>(errors) * kSecondsOfDay / static_cast<double>(*to - *from);
  return fmt::format(" ({:.{}f} a day)", rate, rate < 1 ? 2 : 1);
}

// "8, 5 more since 2026-11-20 09:30:00 +01:00 (2.5 a day)"
std::string GrowthText(std::uint64_t before, std::uint64_t now, const std::string& timeBefore,
                       const std::string& timeNow) {
  const std::string since = timeBefore.empty() ? "the baseline" : ReadableTime(timeBefore);
  return fmt::format("{}, {} more since {}{}", now, now - before, since, RateText(now - before, timeBefore, timeNow));
}

}  // namespace

std::vector<ErrorGrowth> GrowthOf(const Device& before, const Device& now, const QueryHeader& header) {
  std::vector<ErrorGrowth> growths;
  if (!before.errors || !now.errors) return growths;
  for (const Counter& counter : kCounters) {
    const std::uint64_t oldCount = (*before.errors).*counter.count;
    const std::uint64_t newCount = (*now.errors).*counter.count;
    if (newCount <= oldCount) continue;
    const std::string text = GrowthText(oldCount, newCount, header.expectations.baseline->time, header.time.ToString());
    ErrorGrowth& growth = growths.emplace_back();
    growth.text = fmt::format("{}: {}", counter.what, text);
    const auto limit = counter.limit == nullptr ? std::nullopt : header.limits.*counter.limit;
    if (!limit || newCount < *limit) continue;
    growth.finding = Finding{Severity::kWarning,
                             std::string(kDiskDriveClass),
                             now.identifier,
                             now.name,
                             std::string(counter.property),
                             text,
                             kGrowing,
                             now.instance};
  }
  return growths;
}

}  // namespace hxahost
