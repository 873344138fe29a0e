#include "host/hxahost/views/status/status_view.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/result/answers.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/terminal/wrap.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/incident_lines.h"
#include "host/hxahost/views/level_colour.h"

namespace hxahost {

namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t kScreen = 24;
constexpr std::size_t kFewest = 2;  // lines of an incident: its headline and its action

// "CRITICAL SAMPLE at 2026-11-21 09:30:00 +01:00: 4 critical, 1 warning"
Lines Verdict(const HealthReport& report) {
  const Machine& machine = report.machine;
  const Severity worst = WorstOf(machine.findings);
  const std::string tally = Tally(machine.incidents);
  const bool isNothing = worst == Severity::kFine && machine.controllers.empty();
  const std::string text =
      fmt::format("{} at {}: {}", Printable(report.header.machine), ReadableTime(report.header.time.ToString()),
                  isNothing       ? "no controller found"
                  : tally.empty() ? "no fault found"
                                  : tally);
  const Layout& layout = report.header.layout;
  return WrappedBehind(SeverityHead(Upper(SeverityWord(worst)), worst, layout), text, layout);
}

// How many lines of each incident are shown: all if they fit; otherwise its headline and the first line of its action,
// and the remaining lines of the screen line by line for the worst incidents. Incidents past the end are not shown.
std::vector<std::size_t> Shares(const std::vector<Lines>& blocks, std::size_t room) {
  const std::size_t shown = blocks.size() * kFewest <= room ? blocks.size() : (room - 1) / kFewest;
  std::vector<std::size_t> shares(shown, kFewest);
  std::size_t spare = room - shown * kFewest - (shown < blocks.size() ? 1 : 0);
  for (bool isGiven = true; isGiven && spare > 0;) {
    isGiven = false;
    for (std::size_t place = 0; place < shown && spare > 0; ++place) {
      if (shares[place] >= blocks[place].size()) continue;
      ++shares[place];
      --spare;
      isGiven = true;
    }
  }
  return shares;
}

Lines AllIncidents(const HealthReport& report, std::size_t room) {
  const Layout& layout = report.header.layout;
  std::vector<Lines> blocks;
  std::size_t wanted = 0;
  for (const Incident& incident : report.machine.incidents) {
    Lines block = IncidentLines(incident, layout);
    wanted += block.size();
    if (incident.severity == Severity::kFine && wanted > room) break;  // information comes last, and only if it fits
    blocks.push_back(std::move(block));
  }
  const std::vector<std::size_t> shares = Shares(blocks, room);
  Lines lines;
  for (std::size_t place = 0; place < shares.size(); ++place) {
    Lines& block = blocks[place];
    if (shares[place] < block.size()) {
      block.resize(shares[place]);
      block.back() = CutToWidth(block.back() + " \u2026", layout.width);
    }
    std::ranges::move(block, std::back_inserter(lines));
  }
  const std::size_t left = blocks.size() - shares.size();
  if (left > 0)
    lines.push_back(std::string(kIncidentIndent, ' ') + fmt::format("and {} more: see hxahost health", left));
  return lines;
}

Level LevelOf(const Machine& machine, std::size_t controller) {
  Level worst = Level::kFine;
  for (const Incident& incident : machine.incidents) {
    if (incident.controller == controller) worst = std::max(worst, LevelOf(incident.severity));
  }
  return worst;
}

std::size_t DisksOf(const Controller& controller) {
  return static_cast<std::size_t>(std::ranges::count(controller.devices, HardwareKind::kDisk, &Device::kind));
}

// "46 C" of "46 C/ 114 F (Normal)".
std::string TemperatureOf(const ControllerUnit& unit) {
  const std::string text = Printable(unit.temperature.text);
  return std::string(Trim(text.substr(0, text.find('/'))));
}

Table ControllerTable(const Machine& machine) {
  Table table;
  table.columns = {
      {"Ctrl",   20, 16},
      {"State"       },
      {"Model",  24   },
      {"Drives", 6, 6},
      {"Disks",        5,  5},
      {"Battery",       12,    7},
      {"Temp",8,        4},
      {"Firmware",   18}
  };
  for (std::size_t place = 0; place < machine.controllers.size(); ++place) {
    const Controller& controller = machine.controllers[place];
    const ControllerUnit unit = controller.units.empty() ? ControllerUnit() : controller.units.front();
    const Level level = LevelOf(machine, place);
    table.colours.emplace(std::pair(table.rows.size(), 1U), ColourOf(level).value_or(Colour::kGreen));
    table.rows.push_back({ShortName(controller), std::string(LevelWord(level)), Printable(unit.model),
                          std::to_string(controller.logicalDrives.size()), std::to_string(DisksOf(controller)),
                          Printable(unit.battery.state.text), TemperatureOf(unit), Printable(unit.firmware)});
  }
  return table;
}

// The source of the data: the utilities, or a bundle.
std::string_view SourceOf(const QueryHeader& header) {
  if (!header.isReplayed) return "Tools";
  return header.isMasked ? "Replayed, masked" : "Replayed";
}

// The command to run next.
std::string Hint(const Machine& machine) {
  const auto located = std::ranges::find_if(machine.incidents, [&](const Incident& each) {
    return !each.location.empty() && each.urgency == Urgency::kReplace &&
           each.disks.front().controller < machine.controllers.size();
  });
  const std::string hint = "More: hxahost health -v";
  if (located == machine.incidents.end()) return hint;
  return fmt::format("{}, hxahost explain \"{} {}\"", hint, ShortName(machine.controllers[located->controller]),
                     located->location);
}

void Write(std::ostream& out, const Lines& lines) {
  for (const std::string& line : lines) out << line << '\n';
}

}  // namespace

void WriteStatusText(std::ostream& out, const HealthReport& report) {
  const Machine& machine = report.machine;
  const Layout& layout = report.header.layout;
  const Table controllers = ControllerTable(machine);
  Lines end;
  if (const std::string answers = AnswersText(report.result.runs); !answers.empty()) {
    end = WrapWords(fmt::format("{}: {}", SourceOf(report.header), answers), layout.width);
  }
  const bool isFine = machine.incidents.empty();
  if (!isFine) std::ranges::move(WrapWords(Hint(machine), layout.width), std::back_inserter(end));
  const Lines verdict = Verdict(report);
  const std::size_t blank = isFine ? 0 : 2;
  const std::size_t fixed =
      verdict.size() + blank + (controllers.rows.empty() ? 0 : controllers.rows.size() + 1) + end.size();
  Write(out, verdict);
  if (!isFine) out << '\n';
  Write(out, AllIncidents(report, kScreen - std::min(fixed, kScreen - kFewest)));
  if (!isFine) out << '\n';
  WriteTable(out, layout, controllers);
  Write(out, end);
}

}  // namespace hxahost
