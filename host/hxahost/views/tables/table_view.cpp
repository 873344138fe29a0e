#include "host/hxahost/views/tables/table_view.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include <fmt/core.h>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/machine/kept_events.h"
#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/terminal/wrap.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/incident_lines.h"
#include "host/hxahost/views/tables/controller_blocks.h"
#include "host/hxahost/views/tables/raw_text_summary.h"
#include "host/hxahost/views/tables/record_sections.h"
#include "host/hxahost/views/tables/tool_summary.h"
#include "host/hxahost/views/tables/unread_view.h"

namespace hxahost {

namespace {

// Raw texts exist even if the commands found nothing.
bool IsFound(const NKVRHXA20::TPublishedInstance& instance) { return instance.Class().name != kRawDataClass; }

// If nothing was found, first show whether any tool was started.
void WriteToolsNotStarted(std::ostream& out, const Layout& layout, const QueryResult& result) {
  std::string names;
  std::set<std::string> known;
  for (const ToolRun& run : result.runs) {
    const bool isStarted = run.outcome != Outcome::kNotStarted && run.outcome != Outcome::kNotInstalled;
    if (isStarted || !known.insert(run.path).second) continue;
    names += (names.empty() ? "" : ", ") + Printable(run.path);
  }
  if (names.empty()) return;
  out << CutToWidth("Not started: " + names, layout.width) << '\n';
}

void WriteNothingFound(std::ostream& out, const Layout& layout, const QueryResult& result) {
  if (std::ranges::any_of(result.instances, [](const auto& instance) { return IsFound(*instance); })) return;
  out << "\nNothing was found: no controller, no drive and no log record of the classes asked for.\n";
  WriteToolsNotStarted(out, layout, result);
}

// A verdict on only some of the classes would mislead.
bool IsJudged(const QueryHeader& header) {
  return std::ranges::all_of(HealthClasses(), [&](std::string_view name) { return IsAskedFor(header, name); });
}

void WriteVerdict(std::ostream& out, const QueryHeader& header, const Machine& machine) {
  const Severity worst = WorstOf(machine.findings);
  const std::string tally = Tally(machine.incidents);
  out << '\n'
      << SeverityHead(Upper(SeverityWord(worst)), worst, header.layout) << (tally.empty() ? "no fault found" : tally)
      << '\n';
  if (!machine.incidents.empty()) out << '\n';
  for (const Incident& incident : machine.incidents) {
    for (const std::string& line : IncidentLines(incident, header.layout)) out << line << '\n';
  }
}

void WriteCounts(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  std::map<std::string_view, std::size_t> counts;
  for (const auto& instance : result.instances) ++counts[instance->Class().name];
  if (result.events > 0) counts[kEventClass] = result.events;
  Table table;
  table.columns = {
      {"Class asked for", 60},
      {"Instances"                }
  };
  for (const std::string& name : header.classes) table.rows.push_back({name, std::to_string(counts[name])});
  out << '\n';
  WriteTable(out, header.layout, table);
}

void WriteEventNote(std::ostream& out, const Layout& layout, const QueryResult& result) {
  const std::string note = EventNote(result);
  if (note.empty()) return;
  for (const std::string& line : WrapWords(note, layout.width)) out << line << '\n';
}

}  // namespace

void BeginTables(std::ostream& out, const QueryHeader& header) {
  const std::string line = fmt::format("RAID controllers of {} on {}, collected in {}", Printable(header.machine),
                                       ReadableTime(header.time.ToString()), Printable(header.directory));
  out << CutToWidth(line, header.layout.width) << '\n';
  if (header.isReplayed) out << CutToWidth(SourceNote(header), header.layout.width) << '\n';
}

void WriteQueryTables(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  if (header.queryCount > 1) out << "\nQuery " << result.number << " of " << header.queryCount << '\n';
  const Machine machine = BuildMachine(header, result);
  WriteNothingFound(out, header.layout, result);
  if (IsJudged(header)) WriteVerdict(out, header, machine);
  WriteControllerBlocks(out, header, result.instances, machine);
  WriteRecordSections(out, header, result.instances, machine);
  WriteEventNote(out, header.layout, result);
  if (header.showAll) {
    WriteRawTextSummary(out, header.layout, result.instances);
    WriteCounts(out, header, result);
  }
  WriteToolSummaries(out, header, result);
  if (header.withUnread) WriteUnreadLines(out, header.layout, result.instances);
}

void EndTables(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
