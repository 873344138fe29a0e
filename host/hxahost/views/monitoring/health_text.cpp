#include <algorithm>
#include <set>
#include <string>

#include <fmt/core.h>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/monitoring/finding_line.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

std::string Counted(const Machine& machine, std::string_view className, std::string_view what) {
  const std::size_t count = CountOf(machine, className);
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

std::string Inventory(const Machine& machine) {
  return fmt::format("{}, {}, {}", Counted(machine, kControllerClass, "controller"),
                     Counted(machine, kLogicalDiskClass, "logical drive"), Counted(machine, kDiskDriveClass, "device"));
}

// "4 critical, 1 warning"
std::string Tally(const Findings& findings) {
  std::string tally;
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown}) {
    const auto count = std::ranges::count(findings, severity, &Finding::severity);
    if (count == 0) continue;
    tally += fmt::format("{}{} {}", tally.empty() ? "" : ", ", count, SeverityWord(severity));
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
  if (machine.findings.empty() && CountOf(machine, kControllerClass) == 0) {
    return fmt::format("no controller on {}: {} answered that there is none", name, ToolsThatRan(report.result.runs));
  }
  const std::string verdict = machine.findings.empty() ? "nothing is wrong" : Tally(machine.findings);
  return fmt::format("{} on {} ({})", verdict, name, Inventory(machine));
}

std::string WordOf(const HealthRule& rule) {
  if (rule.word.empty()) return "nothing";
  return fmt::format("\"{}\"{}", rule.word, rule.code.empty() ? "" : fmt::format(" ({})", rule.code));
}

std::string_view WhereOf(Where where) {
  switch (where) {
    case Where::kAnywhere: return "";
    case Where::kOnHardDisk: return " of a hard disk";
    case Where::kWithChannelLine: return " beside a description of the channel";
    case Where::kOnFailedSpares: return " where hot spares alone have failed";
    case Where::kOnUnguardedArray: return " in a logical drive that is not guarded";
    case Where::kOnConfiguration: return " to getconfig";
    case Where::kOnState: break;
  }
  return " to any command but getlogs";
}

}  // namespace

// The first line is what monitoring programs show.
void WriteHealthText(std::ostream& out, const HealthReport& report) {
  out << Upper(SeverityWord(WorstOf(report.machine.findings))) << ": " << Summary(report) << '\n';
  for (const Finding& finding : report.machine.findings) out << FindingText(finding) << '\n';
  if (report.header.isReplayed) out << SourceNote(report.header) << '\n';
}

void WriteHealthRules(std::ostream& out) {
  const WatchedValue* value = nullptr;
  for (const HealthRule& rule : HealthRules()) {
    if (rule.value != value)
      out << (value == nullptr ? "" : "\n") << rule.value->className << ", " << rule.value->property << '\n';
    value = rule.value;
    out << fmt::format("  {:<9}{}{}, printed by {}{}{}\n", SeverityWord(SeverityOf(rule.level)), WordOf(rule),
                       WhereOf(rule.where), rule.tools, rule.meaning.what.empty() ? "" : ": ", TextOf(rule.meaning));
  }
}

}  // namespace hxahost
