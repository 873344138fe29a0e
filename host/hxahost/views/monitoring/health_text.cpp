#include <set>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/terminal/wrap.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/incident_lines.h"
#include "host/hxahost/views/monitoring/finding_line.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

std::string ToolsThatRan(const ToolRunList& runs) {
  std::set<std::string> seen;
  std::string names;
  for (const ToolRun& run : runs) {
    if (run.outcome == Outcome::kNotInstalled) continue;
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
  const std::string verdict = machine.findings.empty() ? "nothing is wrong" : Tally(machine.incidents);
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
    case Where::kOnUnknownType: return " of a device of unknown type";
    case Where::kWithChannelLine: return " beside a description of the channel";
    case Where::kOnFailedSpares: return " where hot spares alone have failed";
    case Where::kOnUnguardedArray: return " in a logical drive that is not guarded";
    case Where::kOnConfiguration: return " to getconfig";
    case Where::kOnOptional: return " of a utility that --expect does not name";
    case Where::kOnState: break;
  }
  return " to any command but getlogs";
}

void WriteLines(std::ostream& out, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) out << line << '\n';
}

void WriteFindings(std::ostream& out, const Machine& machine, const Incident& incident, const Layout& layout) {
  const std::string indent(kIncidentIndent, ' ');
  for (const std::size_t place : incident.findings) {
    std::string_view mark = "- ";
    for (const std::string& line :
         WrapWords(FindingText(machine.findings[place]), layout.width - indent.size() - mark.size())) {
      out << indent << mark << line << '\n';
      mark = "  ";
    }
  }
}

}  // namespace

void WriteHealthText(std::ostream& out, const HealthReport& report) {
  const Machine& machine = report.machine;
  const Layout& layout = report.header.layout;
  const Severity worst = WorstOf(machine.findings);
  // One line however long: monitoring programs show the first one.
  out << Painted(Upper(SeverityWord(worst)), LevelOf(worst), layout) << ": " << Summary(report) << '\n';
  if (report.header.isReplayed) WriteLines(out, WrapWords(SourceNote(report.header), layout.width));
  for (const Incident& incident : machine.incidents) {
    out << '\n';
    WriteLines(out, IncidentLines(incident, layout));
    if (report.isVerbose) WriteFindings(out, machine, incident, layout);
  }
  const std::size_t count = machine.findings.size();
  if (report.isVerbose || count == 0) return;
  out << '\n';
  WriteLines(out, WrapWords(fmt::format("{} finding{} in all: hxahost health --verbose", count, count == 1 ? "" : "s"),
                            layout.width));
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
