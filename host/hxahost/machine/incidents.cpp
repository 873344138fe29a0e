#include "host/hxahost/machine/incidents.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/machine/cause.h"
#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/machine/storage_incident.h"
#include "host/hxahost/result/tool_answer.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

bool IsOfTool(const Machine& machine, std::size_t place) { return machine.findings[place].className == kToolRun; }

// "arcconf did not answer within 300 s", "arcconf printed no valid report: x"; else "arcconf: its exit status is 5".
std::string ToolHeadline(const Finding& finding) {
  constexpr std::string_view kFailed = "failed: ";
  constexpr std::string_view kTimedOut = "timed out: it ";
  std::string_view text = finding.text;
  if (text.starts_with(kTimedOut)) text.remove_prefix(kTimedOut.size());
  if (!text.starts_with(kFailed)) return fmt::format("{} {}", Printable(finding.identifier), Printable(text));
  text.remove_prefix(kFailed.size());
  return fmt::format("{}{} {}", Printable(finding.identifier), text.starts_with("printed ") ? "" : ":",
                     Printable(text));
}

// One incident for all failures of a utility: "arcconf: run as administrator".
void DescribeTool(const Machine& machine, Incident& incident) {
  const auto refused = std::ranges::find_if(incident.findings, [&](std::size_t place) {
    const std::string& text = machine.findings[place].text;
    return IsRefusalOfUser(text) &&
           !text.starts_with("not started: ");  // this refusal is about a file that is not a program
  });
  if (refused != incident.findings.end()) {
    incident.headline = machine.findings[*refused].identifier + ": run as administrator";
    incident.action = "RUN this program again as administrator";
    return;
  }
  const auto run = std::ranges::find_if(incident.findings, [&](std::size_t place) { return IsOfTool(machine, place); });
  incident.headline = ToolHeadline(machine.findings[*run]);
  incident.action = InstructionOf(machine.findings[incident.findings.front()]);
}

struct Headline {
  Effect effect;
  std::string_view text;  // {} is the value
};

constexpr Headline kHeadlines[] = {
    {Effect::kHeat,       "is too hot: {}"       },
    {Effect::kBattery,    "battery: {}"          },
    {Effect::kController, "has failed"           },
    {Effect::kUnread,     "was read in part: {}" },
    {Effect::kUnchecked,  "may be incomplete: {}"},
};

// The battery is the only part of a controller that is replaced separately.
std::string BatteryPart(const Controller& controller) {
  const std::string fru = controller.units.size() == 1 ? Printable(controller.units.front().battery.fru) : "";
  return fru.empty() ? "" : ", FRU " + fru;
}

// Of repeated messages the last one is shown.
void DescribeMessage(const Machine& machine, Incident& incident) {
  const Finding& finding = machine.findings[incident.findings.back()];
  incident.headline = fmt::format("{}: \"{}\"", Printable(finding.name), Printable(finding.text));
  incident.action = InstructionOf(finding);
}

void DescribeOther(const Machine& machine, Incident& incident) {
  const Finding& finding = machine.findings[incident.findings.front()];
  const std::string text = Printable(finding.text);
  const auto* const headline = std::ranges::find(kHeadlines, finding.meaning.effect, &Headline::effect);
  const bool isOfController = incident.controller < machine.controllers.size();
  if (isOfController && headline != std::end(kHeadlines)) {
    incident.headline = fmt::format("{} {}", ShortName(machine.controllers[incident.controller]),
                                    fmt::format(fmt::runtime(headline->text), text));
  } else {
    incident.headline = fmt::format("{}: {} \"{}\"", Printable(finding.name), Printable(finding.property), text);
  }
  incident.action = InstructionOf(finding);
  if (isOfController && finding.property == kBattery.property) {
    incident.action += BatteryPart(machine.controllers[incident.controller]);
  }
}

struct Part {
  Effect effect;
  std::string_view name;
};

// Parts of a controller that have incidents of their own.
constexpr Part kParts[] = {
    {Effect::kHeat,      " temperature"},
    {Effect::kBattery,   " battery"    },
    {Effect::kUnread,    " unread"     },
    {Effect::kUnchecked, " unchecked"  },
};

// The identifier of the first logical drive or device, else of the object that reports it. Values and severities are
// left out: they change while the incident lasts.
void NameSubject(const Machine& machine, const Cause& cause, Incident& incident) {
  const Finding& finding = machine.findings[cause.findings.front()];
  const auto name = [&](const Object& object) {
    incident.subject = object.identifier;
    incident.name = Printable(object.name);
  };
  if (!cause.drives.empty()) return name(machine.controllers[cause.controller].logicalDrives[cause.drives.front()]);
  if (!cause.devices.empty()) return name(machine.controllers[cause.controller].devices[cause.devices.front()]);
  incident.name = Printable(finding.name);
  incident.subject = finding.identifier;
  const bool isOfController = cause.controller < machine.controllers.size();
  const auto* const part = std::ranges::find(kParts, finding.meaning.effect, &Part::effect);
  if (isOfController && part != std::end(kParts)) incident.subject += part->name;
  if (!isOfController && finding.instance) incident.subject = finding.name;  // records have numbers that change
  const Words head = finding.className == kLog ? LogHead(finding.text) : Words();
  if (!head.empty()) incident.subject += " " + head.front();
}

// The change that belongs to a finding about expectations; null for any other finding.
const Incident* ChangeOf(const Machine& machine, const Finding& finding) {
  if (finding.className != kBaseline && finding.className != kExpectation) return nullptr;
  const auto change = std::ranges::find_if(machine.changes, [&](const Incident& each) {
    return each.severity != Severity::kFine && each.subject == finding.identifier;
  });
  return change == machine.changes.end() ? nullptr : &*change;
}

Incident Describe(const Machine& machine, const Cause& cause) {
  Incident incident;
  if (const Incident* const change = ChangeOf(machine, machine.findings[cause.findings.front()])) {
    incident = *change;
    incident.findings = cause.findings;
    return incident;
  }
  incident.controller = cause.controller;
  incident.findings = cause.findings;
  NameSubject(machine, cause, incident);
  for (const std::size_t place : cause.findings) {
    const Severity severity = machine.findings[place].severity;
    if (IsWorse(severity, incident.severity)) incident.severity = severity;
  }
  if (!cause.drives.empty() || !cause.devices.empty()) {
    DescribeStorage(machine, cause, incident);
  } else if (std::ranges::any_of(cause.findings, [&](std::size_t place) { return IsOfTool(machine, place); })) {
    DescribeTool(machine, incident);
  } else if (machine.findings[cause.findings.front()].className == kEventClass) {
    DescribeMessage(machine, incident);
  } else {
    DescribeOther(machine, incident);
  }
  return incident;
}

// For information: disks of one model in one array should have the same firmware.
void AddMixedFirmware(const Machine& machine, Incidents& incidents) {
  for (std::size_t place = 0; place < machine.controllers.size(); ++place) {
    const Controller& controller = machine.controllers[place];
    for (const LogicalDrive& drive : controller.logicalDrives) {
      std::set<std::string> models;
      std::set<std::string> levels;
      for (const std::size_t member : drive.members) {
        const Device& device = controller.devices[member];
        if (device.firmware.empty()) continue;
        models.insert(device.model);
        levels.insert(Printable(device.firmware));
      }
      if (models.size() != 1 || levels.size() < 2) continue;
      Incident& incident = incidents.emplace_back();
      incident.controller = place;
      incident.subject = drive.identifier + " firmware";
      incident.name = Printable(drive.name);
      incident.headline = fmt::format("{} {} has disks with different firmware: {}", ShortName(controller),
                                      ShortName(drive), fmt::join(levels, ", "));
      incident.action = "UPDATE the disks to one firmware level at the next maintenance";
    }
  }
}

// For information: most machines need one or two of the utilities.
void AddAbsentTools(Machine& machine) {
  for (const std::string_view tool : machine.absentTools) {
    Incident& incident = machine.incidents.emplace_back();
    incident.controller = machine.controllers.size();
    incident.subject = incident.name = tool;
    incident.headline = fmt::format("{} is not installed", tool);
    incident.action = "PUT it into the folder zenx if this machine has controllers that it serves";
  }
}

}  // namespace

std::string_view IncidentWord(const Incident& incident) {
  return incident.severity == Severity::kFine ? "info" : SeverityWord(incident.severity);
}

void FindIncidents(Machine& machine, const InstanceList& instances) {
  for (const Cause& cause : FindCauses(machine, instances)) machine.incidents.push_back(Describe(machine, cause));
  AddMixedFirmware(machine, machine.incidents);
  AddAbsentTools(machine);
  std::ranges::copy_if(machine.changes, std::back_inserter(machine.incidents),
                       [](const Incident& change) { return change.severity == Severity::kFine; });
  std::ranges::stable_sort(machine.incidents, [](const Incident& left, const Incident& right) {
    if (left.severity != right.severity) return IsWorse(left.severity, right.severity);
    return std::tie(left.urgency, left.controller) < std::tie(right.urgency, right.controller);
  });
}

}  // namespace hxahost
