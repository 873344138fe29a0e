#include "host/hxahost/machine/finding.h"

#include <algorithm>
#include <array>

namespace hxahost {

namespace {

int Rank(Severity severity) {
  constexpr std::array kFromBestToWorst = {Severity::kFine, Severity::kUnknown, Severity::kWarning,
                                           Severity::kCritical};
  return static_cast<int>(std::ranges::find(kFromBestToWorst, severity) - kFromBestToWorst.begin());
}

}  // namespace

std::string_view SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::kFine: return "ok";
    case Severity::kWarning: return "warning";
    case Severity::kCritical: return "critical";
    case Severity::kUnknown: break;
  }
  return "unknown";
}

bool IsWorse(Severity left, Severity right) { return Rank(left) > Rank(right); }

Severity WorstOf(const Findings& findings) {
  Severity worst = Severity::kFine;
  for (const Finding& finding : findings) {
    if (IsWorse(finding.severity, worst)) worst = finding.severity;
  }
  return worst;
}

}  // namespace hxahost
