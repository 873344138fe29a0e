#include <algorithm>
#include <string>
#include <vector>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/fleet/fleet_view.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/incident_lines.h"
#include "host/hxahost/views/level_colour.h"

namespace hxahost {

namespace {

constexpr std::size_t kMostFine = 20;  // machines with nothing wrong that are shown without --all
constexpr std::size_t kMostNames = 5;  // of machines in a cell

void WriteTitled(std::ostream& out, const FleetView& view, const std::string& title, const Table& table) {
  if (table.rows.empty()) return;
  out << '\n' << title << '\n';
  WriteTable(out, view.layout, table);
}

std::string NamesText(const std::vector<std::string>& names) {
  const std::size_t shown = std::min(names.size(), kMostNames);
  const auto end = names.begin() + static_cast<std::ptrdiff_t>(shown);
  const std::string text = fmt::format("{}", fmt::join(names.begin(), end, ", "));
  return shown == names.size() ? text : fmt::format("{} and {} more", text, names.size() - shown);
}

// "DB01 C4 enclosure 0, slot 8 (2026-11-21)"
std::string SightingText(const Sighting& sighting) {
  const std::string day = sighting.time.empty() ? "" : " (" + ReadableTime(sighting.time).substr(0, 10) + ")";
  return sighting.machine + " " + sighting.place + day;
}

Table MachineTable(const Fleet& fleet, const std::vector<const FleetMachine*>& machines) {
  Table table;
  table.columns = {
      {"Machine", 30,  12,    true},
      {"State",         8,      8,  true},
      {"Age",     9,        4,        true},
      {"Incidents",        34,10},
      {"Controllers",11,  11         },
      {"Drives",        6,        6   },
      {"Disks", 5,5},
      {"Collected",        26,               10                      },
  };
  for (const FleetMachine* const machine : machines) {
    const Level level = machine->state == Severity::kFine ? Level::kFine : LevelOf(machine->state);
    table.colours.emplace(std::pair(table.rows.size(), 1U), ColourOf(level).value_or(Colour::kGreen));
    if (fleet.IsStale(*machine)) table.colours.emplace(std::pair(table.rows.size(), 2U), Colour::kYellow);
    table.rows.push_back({machine->name, std::string(SeverityWord(machine->state)), AgeText(fleet.AgeOf(*machine)),
                          Tally(machine->machine.incidents), std::to_string(machine->controllers.size()),
                          std::to_string(machine->logicalDrives), std::to_string(machine->disks.size()),
                          ReadableTime(machine->time)});
  }
  return table;
}

void WriteMachines(std::ostream& out, const FleetView& view) {
  std::vector<const FleetMachine*> machines = view.fleet.Machines();
  const auto fine = std::ranges::find_if(
      machines, [&](const FleetMachine* each) { return each->state == Severity::kFine && !view.fleet.IsStale(*each); });
  const auto fineCount = static_cast<std::size_t>(machines.end() - fine);
  const std::size_t left = view.showAll || fineCount <= kMostFine ? 0 : fineCount - kMostFine;
  machines.resize(machines.size() - left);
  if (machines.empty()) return;
  out << '\n';
  WriteTable(out, view.layout, MachineTable(view.fleet, machines));
  if (left > 0) out << fmt::format("  and {} more with nothing wrong: --all shows them\n", left);
}

void WriteIncidents(std::ostream& out, const FleetView& view) {
  std::string_view blank = "\n";
  for (const FleetMachine* const machine : view.fleet.Machines()) {
    for (Incident incident : machine->machine.incidents) {
      incident.headline = machine->name + ": " + incident.headline;
      out << blank;
      for (const std::string& line : IncidentLines(incident, view.layout)) out << line << '\n';
      blank = "";
    }
  }
}

Table DiskTable(const Fleet& fleet) {
  Table table;
  table.columns = {
      {"Disk model", 40, 16,        true},
      {"Firmware",            16,     8, true},
      {"Disks",        7,          5            },
      {"Failed",           6,    6},
      {"Predicted",           9,          9               },
      {"Machines",           8,    8},
  };
  for (const DiskModel& model : fleet.DiskModels()) {
    if (model.failed > 0) table.colours.emplace(std::pair(table.rows.size(), 3U), Colour::kRed);
    if (model.predicted > 0) table.colours.emplace(std::pair(table.rows.size(), 4U), Colour::kYellow);
    table.rows.push_back({model.model, model.firmware, std::to_string(model.disks), std::to_string(model.failed),
                          std::to_string(model.predicted), std::to_string(model.machines)});
  }
  return table;
}

Table ControllerTable(const Fleet& fleet) {
  Table table;
  table.columns = {
      {"Controller model", 30, 16,        true},
      {"Firmware",                  20,           8, true},
      {"Controllers",              11,                11            },
      {"Machines",                80,   20},
  };
  for (const ControllerModel& model : fleet.ControllerModels()) {
    table.rows.push_back({model.model.empty() ? "not known" : model.model, model.firmware,
                          std::to_string(model.controllers), NamesText(model.machines)});
  }
  return table;
}

// A row for each place.
Table SharedTable(const Fleet& fleet) {
  Table table;
  table.columns = {
      {"Serial number", 24, 8,    true},
      {"Model",         24, 8   },
      {"Seen in",             70, 40, true    },
  };
  for (const SharedSerialNumber& shared : fleet.SharedSerialNumbers()) {
    for (const Sighting& each : shared.seen) {
      const bool isFirst = &each == &shared.seen.front();
      table.rows.push_back({isFirst ? shared.serialNumber : "", isFirst ? each.model : "", SightingText(each)});
    }
  }
  return table;
}

// A row for the old place, and one for the new.
Table MovedTable(const Fleet& fleet) {
  Table table;
  table.columns = {
      {"Serial number", 24, 8,    true},
      {"Model",         24, 8   },
      {"Moved",             70, 40, true    },
  };
  for (const MovedDisk& moved : fleet.MovedDisks()) {
    table.rows.push_back({moved.serialNumber, moved.to.model, "from " + SightingText(moved.from)});
    table.rows.push_back({"", "", "to " + SightingText(moved.to)});
  }
  return table;
}

Table StaleTable(const Fleet& fleet) {
  std::vector<const FleetMachine*> machines = fleet.Machines();
  std::erase_if(machines, [&](const FleetMachine* each) { return !fleet.IsStale(*each); });
  std::ranges::stable_sort(machines, {}, &FleetMachine::seconds);
  return MachineTable(fleet, machines);
}

}  // namespace

void WriteFleetTable(std::ostream& out, const FleetView& view) {
  const Fleet& fleet = view.fleet;
  const Severity worst = WorstOf(fleet);
  out << SeverityHead(Upper(SeverityWord(worst)), worst, view.layout) << VerdictText(fleet) << '\n';
  WriteMachines(out, view);
  WriteIncidents(out, view);
  WriteTitled(out, view, "Disks by model and firmware", DiskTable(fleet));
  WriteTitled(out, view, "Controllers by model and firmware", ControllerTable(fleet));
  WriteTitled(out, view, "Serial numbers in more than one machine", SharedTable(fleet));
  WriteTitled(out, view, "Disks that moved", MovedTable(fleet));
  if (const auto days = fleet.Options().staleDays) {
    WriteTitled(out, view, fmt::format("Not collected from for more than {} days", *days), StaleTable(fleet));
  }
  if (fleet.Damaged().empty()) return;
  out << "\nFiles that hold no result\n";
  for (const DamagedFile& each : fleet.Damaged()) out << "  " << each.reason << '\n';
}

}  // namespace hxahost
