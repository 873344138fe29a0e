#include <algorithm>
#include <cctype>
#include <set>
#include <string>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/monitoring/finding_line.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

std::string InCapitals(std::string_view word) {
  std::string capitals(word);
  std::ranges::transform(capitals, capitals.begin(),
                         [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return capitals;
}

std::string CountedAs(std::size_t count, const std::string& one, const std::string& several) {
  return std::to_string(count) + " " + (count == 1 ? one : several);
}

std::string Inventory(const Machine& machine) {
  return CountedAs(CountOf(machine, kControllerClass), "controller", "controllers") + ", " +
         CountedAs(CountOf(machine, kLogicalDiskClass), "logical drive", "logical drives") + ", " +
         CountedAs(CountOf(machine, kDiskDriveClass), "device", "devices");
}

// "4 critical, 1 warning"
std::string Tally(const Findings& findings) {
  std::string tally;
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown}) {
    const auto count = std::ranges::count(findings, severity, &Finding::severity);
    if (count == 0) continue;
    tally += (tally.empty() ? "" : ", ") + std::to_string(count) + " " + std::string(SeverityWord(severity));
  }
  return tally;
}

std::string ToolsThatRan(const ToolRunList& runs) {
  std::set<std::string> seen;
  std::string names;
  for (const ToolRun& run : runs) {
    const std::string tool = Printable(ToolName(run.path));
    if (seen.insert(tool).second) names += (names.empty() ? "" : ", ") + tool;
  }
  return names;
}

std::string Summary(const HealthReport& report) {
  const std::string name = Printable(report.header.machine);
  const Machine& machine = report.machine;
  const std::string inventory = " (" + Inventory(machine) + ")";
  if (!machine.findings.empty()) return Tally(machine.findings) + " on " + name + inventory;
  if (CountOf(machine, kControllerClass) > 0) return "nothing is wrong on " + name + inventory;
  return "no controller on " + name + ": " + ToolsThatRan(report.result.runs) + " answered that there is none";
}

std::string Padded(std::string_view text, std::size_t width) {
  return std::string(text) + std::string(width - std::min(width, text.size()), ' ');
}

std::string WordOf(const HealthRule& rule) {
  if (rule.word.empty()) return "nothing";
  return "\"" + std::string(rule.word) + "\"" + (rule.code.empty() ? "" : " (" + std::string(rule.code) + ")");
}

std::string_view WhereOf(Where where) {
  switch (where) {
    case Where::kAnywhere: return "";
    case Where::kOnHardDisk: return " of a hard disk";
    case Where::kWithChannelLine: return " beside a description of the channel";
    case Where::kOnUnguardedArray: return " in a logical drive that is not guarded";
    case Where::kOnConfiguration: return " to getconfig";
    case Where::kOnState: break;
  }
  return " to any command but getlogs";
}

}  // namespace

// The first line is what monitoring programs show.
void WriteHealthText(std::ostream& out, const HealthReport& report) {
  out << InCapitals(SeverityWord(WorstOf(report.machine.findings))) << ": " << Summary(report) << '\n';
  for (const Finding& finding : report.machine.findings) out << FindingText(finding) << '\n';
}

void WriteHealthRules(std::ostream& out) {
  const WatchedValue* value = nullptr;
  for (const HealthRule& rule : HealthRules()) {
    if (rule.value != value)
      out << (value == nullptr ? "" : "\n") << rule.value->className << ", " << rule.value->property << '\n';
    value = rule.value;
    out << "  " << Padded(SeverityWord(SeverityOf(rule.level)), 9) << WordOf(rule) << WhereOf(rule.where)
        << ", printed by " << rule.tools << (rule.meaning.empty() ? "" : ": ") << rule.meaning << '\n';
  }
}

}  // namespace hxahost
