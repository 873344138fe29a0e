#include "host/hxahost/machine/incidents.h"

#include <algorithm>
#include <cctype>
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
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

std::string Sentence(std::string text) {
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

// "the disk has failed; replace it" ends with what to do; not every meaning has such an end.
std::string ActionOf(const Finding& finding) {
  const std::size_t semicolon = finding.meaning.rfind("; ");
  return semicolon == std::string::npos ? "" : Sentence(finding.meaning.substr(semicolon + 2));
}

bool IsRefusal(const std::string& answer) {
  const std::string text = Lower(answer);
  return text.find("administrator") != text.npos || text.find("access denied") != text.npos ||
         text.find("access is denied") != text.npos || text.find("permission denied") != text.npos;
}

// One incident for all that went wrong with a utility: "arcconf: run as administrator".
void DescribeTool(const Machine& machine, Incident& incident) {
  const auto refused = std::ranges::find_if(incident.findings,
                                            [&](std::size_t place) { return IsRefusal(machine.findings[place].text); });
  const Finding& finding = machine.findings[refused == incident.findings.end() ? incident.findings.front() : *refused];
  if (refused != incident.findings.end()) {
    incident.headline = finding.identifier + ": run as administrator";
    incident.action = "Run this program again as administrator.";
    return;
  }
  const std::size_t colon = finding.text.find(": ");
  const bool isWord = colon != std::string::npos && finding.text.starts_with("failed: ");
  incident.headline = fmt::format("{} {}", Printable(finding.identifier),
                                  Printable(isWord ? finding.text.substr(colon + 2) : finding.text));
  incident.action = ActionOf(finding);
}

struct Headline {
  Effect effect;
  std::string_view text;  // {} is the value
};

constexpr Headline kHeadlines[] = {
    {Effect::kHeat,       "is too hot: {}"},
    {Effect::kBattery,    "battery: {}"   },
    {Effect::kController, "has failed"    },
};

void DescribeOther(const Machine& machine, Incident& incident) {
  const Finding& finding = machine.findings[incident.findings.front()];
  const std::string text = Printable(finding.text);
  const auto* const headline = std::ranges::find(kHeadlines, finding.effect, &Headline::effect);
  const bool isOfController = incident.controller < machine.controllers.size();
  if (isOfController && headline != std::end(kHeadlines)) {
    incident.headline = fmt::format("{} {}", ShortName(machine.controllers[incident.controller]),
                                    fmt::format(fmt::runtime(headline->text), text));
  } else {
    incident.headline = fmt::format("{}: {} \"{}\"", Printable(finding.name), Printable(finding.property), text);
  }
  incident.action = ActionOf(finding);
}

Incident Describe(const Machine& machine, const Cause& cause) {
  Incident incident;
  incident.controller = cause.controller;
  incident.findings = cause.findings;
  for (const std::size_t place : cause.findings) {
    const Severity severity = machine.findings[place].severity;
    if (IsWorse(severity, incident.severity)) incident.severity = severity;
  }
  if (!cause.drives.empty() || !cause.devices.empty()) {
    DescribeStorage(machine, cause, incident);
  } else if (machine.findings[cause.findings.front()].className == kToolRun) {
    DescribeTool(machine, incident);
  } else {
    DescribeOther(machine, incident);
  }
  return incident;
}

// For information: disks of one model that share an array should have one firmware.
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
      incident.headline = fmt::format("{} {} has disks with different firmware: {}", ShortName(controller),
                                      ShortName(drive), fmt::join(levels, ", "));
      incident.action = "UPDATE the disks to one firmware level at the next maintenance.";
    }
  }
}

}  // namespace

std::string_view IncidentWord(const Incident& incident) {
  return incident.severity == Severity::kFine ? "info" : SeverityWord(incident.severity);
}

void FindIncidents(Machine& machine, const InstanceList& instances) {
  for (const Cause& cause : FindCauses(machine, instances)) machine.incidents.push_back(Describe(machine, cause));
  AddMixedFirmware(machine, machine.incidents);
  std::ranges::stable_sort(machine.incidents, [](const Incident& left, const Incident& right) {
    if (left.severity != right.severity) return IsWorse(left.severity, right.severity);
    return std::tie(left.urgency, left.controller) < std::tie(right.urgency, right.controller);
  });
}

}  // namespace hxahost
