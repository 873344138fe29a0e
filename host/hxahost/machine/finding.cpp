#include "host/hxahost/machine/finding.h"

#include <algorithm>

#include <fmt/core.h>

#include "host/hxahost/text/ascii.h"

namespace hxahost {

Severity SeverityOf(Level level) {
  switch (level) {
    case Level::kUnknown: return Severity::kUnknown;
    case Level::kWarning: return Severity::kWarning;
    case Level::kCritical: return Severity::kCritical;
    default: return Severity::kFine;
  }
}

Level LevelOf(Severity severity) {
  switch (severity) {
    case Severity::kFine: return Level::kFine;
    case Severity::kWarning: return Level::kWarning;
    case Severity::kCritical: return Level::kCritical;
    default: return Level::kUnknown;
  }
}

std::string_view LevelWord(Level level) {
  constexpr std::string_view kWords[] = {"unsaid", "ok", "idle", "busy", "unknown", "warning", "critical"};
  return kWords[static_cast<std::size_t>(level)];
}

std::string_view SeverityWord(Severity severity) { return LevelWord(LevelOf(severity)); }

bool IsWorse(Severity left, Severity right) { return LevelOf(left) > LevelOf(right); }

std::string TextOf(const Meaning& meaning) {
  const std::string_view action = meaning.action;
  if (action.empty()) return std::string(meaning.what);
  return fmt::format("{}{}: {}", Upper(action.substr(0, 1)), action.substr(1), meaning.what);
}

Severity WorstOf(const Findings& findings) {
  const auto worst = std::ranges::max_element(findings, {}, [](const Finding& each) { return LevelOf(each.severity); });
  return worst == findings.end() ? Severity::kFine : worst->severity;
}

}  // namespace hxahost
