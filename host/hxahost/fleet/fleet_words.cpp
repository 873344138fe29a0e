#include <algorithm>
#include <array>
#include <vector>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/fleet/fleet_view.h"

namespace hxahost {

Severity WorstOf(const Fleet& fleet) {
  const auto machines = fleet.Machines();
  if (machines.empty()) return Severity::kUnknown;
  const bool isStale = std::ranges::any_of(machines, [&](const auto* each) { return fleet.IsStale(*each); });
  const Severity worst = machines.front()->state;
  return worst == Severity::kFine && (isStale || !fleet.Damaged().empty()) ? Severity::kUnknown : worst;
}

std::string VerdictText(const Fleet& fleet) {
  const auto machines = fleet.Machines();
  std::vector<std::string> counts;
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown, Severity::kFine}) {
    const auto count = std::ranges::count(machines, severity, [](const auto* each) { return each->state; });
    if (count > 0) counts.push_back(fmt::format("{} {}", count, SeverityWord(severity)));
  }
  std::string text = fmt::format("{} machine{}", machines.size(), machines.size() == 1 ? "" : "s");
  if (!counts.empty()) text += fmt::format(": {}", fmt::join(counts, ", "));
  const auto stale = std::ranges::count_if(machines, [&](const auto* each) { return fleet.IsStale(*each); });
  if (stale > 0) text += fmt::format("; {} stale", stale);
  const std::size_t damaged = fleet.Damaged().size();
  if (damaged > 0) text += fmt::format("; {} damaged file{}", damaged, damaged == 1 ? "" : "s");
  return text;
}

std::string AgeText(const std::optional<std::int64_t>& seconds) {
  struct Unit {
    std::int64_t seconds;
    std::string_view name;
  };
  constexpr Unit kUnits[] = {
      {86400, "d"  },
      {3600,  "h"  },
      {60,    "min"},
      {1,     "s"  },
  };
  if (!seconds) return "?";
  if (*seconds < -kClockTolerance) return "future";
  const std::int64_t age = std::max<std::int64_t>(*seconds, 0);
  const auto* const unit = std::ranges::find_if(kUnits, [&](const Unit& each) { return age >= 2 * each.seconds; });
  return unit == std::end(kUnits) ? fmt::format("{} s", age) : fmt::format("{} {}", age / unit->seconds, unit->name);
}

}  // namespace hxahost
