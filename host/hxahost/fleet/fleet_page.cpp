#include <string>

#include <fmt/core.h>

#include "host/hxahost/fleet/fleet_json.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/html_text.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/views/report/report_data.h"
#include "host/hxahost/views/report/report_template.h"
#include "host/hxahost/views/report/script_data.h"
#include "host/hxahost/views/report/summary.h"
#include "host/hxahost/views/report/write_template.h"

namespace hxahost {

namespace {

// A link to the report of the machine, if there is one.
std::string LinkTo(const FleetView& view, const FleetMachine& machine) {
  const auto page = view.pages.find(machine.name);
  return page == view.pages.end() ? "#machines" : HtmlText(page->second);
}

// All machines at a glance; those that are not fine show their names.
void WriteMachines(std::ostream& out, const FleetView& view) {
  out << "<h3 class=\"unseen\">All machines</h3>\n<div class=\"units\"><ul class=\"disks\">\n";
  for (const FleetMachine* const machine : view.fleet.Machines()) {
    const Level level = LevelOf(machine->state);
    const std::string name = HtmlText(machine->name);
    out << fmt::format(R"(<li><a class="disk level-{}" href="{}" title="{}, {}">{}{}</a></li>)"
                       "\n",
                       LevelWord(level), LinkTo(view, *machine), name, SeverityWord(machine->state), SymbolHtml(level),
                       level == Level::kFine ? "" : " " + name);
  }
  out << "</ul></div>\n";
}

void WriteIncidents(std::ostream& out, const FleetView& view) {
  out << "<ol class=\"incidents\">\n";
  for (const FleetMachine* const machine : view.fleet.Machines()) {
    const std::string link = fmt::format(R"(<a href="{}">{}</a>)", LinkTo(view, *machine), HtmlText(machine->name));
    for (const Incident& incident : machine->machine.incidents) {
      WriteIncidentHtml(out, incident, link);
      out << "</li>\n";
    }
  }
  out << "</ol>\n";
}

void WriteSummary(std::ostream& out, const FleetView& view) {
  const Severity worst = WorstOf(view.fleet);
  WriteVerdictHtml(out, LevelOf(worst), Upper(SeverityWord(worst)) + ": " + VerdictText(view.fleet));
  WriteMachines(out, view);
  WriteIncidents(out, view);
}

void WriteData(std::ostream& out, const FleetView& view) {
  ScriptData buffer(out);
  std::ostream data(&buffer);
  data << JsonText({
      {"program", "hxahost " ZENX_VERSION},
      {"levels",  LevelsJson()           },
      {"fleet",   FleetJson(view)        },
  });
}

}  // namespace

void WriteFleetPage(std::ostream& out, const FleetView& view) {
  const TemplateSlot slots[] = {
      {"@ORIGIN@",      [](std::ostream&) {}                                 },
      {"@SUMMARY@",     [&](std::ostream& page) { WriteSummary(page, view); }},
      {"@REPORT_DATA@", [&](std::ostream& page) { WriteData(page, view); }   },
  };
  WriteTemplate(out, FleetTemplate(), slots);
}

}  // namespace hxahost
