#include "host/hxahost/views/report/summary.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/html_text.h"
#include "host/hxahost/views/incident_lines.h"
#include "host/hxahost/views/report/level_marks.h"

namespace hxahost {

namespace {

constexpr std::size_t kMostLinks = 12;  // to the disks of one incident

// What fits on the first printed sheet.
constexpr std::size_t kMostPrintedDisks = 150;
constexpr std::size_t kMostPrintedCards = 8;
constexpr std::size_t kMostPrintedHeadlines = 25;

std::vector<std::string_view> UnjudgedClasses(const QueryHeader& header) {
  std::vector<std::string_view> classes;
  std::ranges::copy_if(HealthClasses(), std::back_inserter(classes),
                       [&header](std::string_view each) { return !IsAskedFor(header, each); });
  return classes;
}

// Only a machine whose health was queried can be fine.
void WriteVerdict(std::ostream& out, const Machine& machine, bool isWhole) {
  const Severity worst = WorstOf(machine.findings);
  if (worst != Severity::kFine) {
    WriteVerdictHtml(out, LevelOf(worst), fmt::format("{}: {}", Upper(SeverityWord(worst)), Tally(machine.incidents)));
  } else if (machine.controllers.empty()) {
    WriteVerdictHtml(out, Level::kUnknown, "Nothing was found: no controller and no disk in what was asked for");
  } else {
    WriteVerdictHtml(out, isWhole ? Level::kFine : Level::kUnsaid,
                     isWhole ? "OK: no fault found" : "No fault found in what was asked for");
  }
}

void WriteLimits(std::ostream& out, const QueryHeader& header, const std::vector<std::string_view>& unjudged) {
  if (!unjudged.empty()) {
    out << fmt::format("<p class=\"quiet\">Not asked for, so not judged: {}.</p>\n", fmt::join(unjudged, ", "));
  }
  if (header.queryCount > 1) {
    out << fmt::format(
        "<p class=\"quiet\">{} queries were made; this is the last one. Its log begins where the one "
        "before it ended. The first query alone ran the tools; their runs are not judged here.</p>\n",
        header.queryCount);
  }
}

std::string LocationOf(const Device& device) {
  return HtmlText(device.location.empty() ? device.name : device.location);
}

// A disk that needs attention, or is at work, shows its place.
void WriteDisk(std::ostream& out, const Controller& controller, std::size_t place) {
  const Device& disk = controller.devices[place];
  const std::string state = disk.state.text.empty() ? "state not said" : disk.state.text;
  out << fmt::format(
      R"(<li><a class="disk level-{0}" href="#object-{1}" data-object="{1}" title="{2}, {3}">{4}{5}</a></li>)"
      "\n",
      LevelWord(disk.level), disk.instance, HtmlText(DescribeDevice(controller, place)), HtmlText(state),
      SymbolHtml(disk.level), disk.level >= Level::kBusy ? " " + LocationOf(disk) : "");
}

void WriteDisks(std::ostream& out, const Controller& controller) {
  const std::string name = HtmlText(ShortName(controller));
  const std::string model = controller.units.empty() ? "" : HtmlText(controller.units.front().model);
  out << fmt::format("<li class=\"unit\"><span class=\"unit-name\">{} <span class=\"quiet\">{}</span></span>\n", name,
                     model);
  out << fmt::format("<ul class=\"disks\" aria-label=\"Disks of {}\">\n", name);
  for (std::size_t place = 0; place < controller.devices.size(); ++place) {
    if (controller.devices[place].kind == HardwareKind::kDisk) WriteDisk(out, controller, place);
  }
  out << "</ul></li>\n";
}

bool HasDisks(const Controller& controller) {
  return std::ranges::find(controller.devices, HardwareKind::kDisk, &Device::kind) != controller.devices.end();
}

std::size_t CountDisks(const Machine& machine) {
  std::size_t count = 0;
  for (const Controller& controller : machine.controllers) {
    count += static_cast<std::size_t>(std::ranges::count(controller.devices, HardwareKind::kDisk, &Device::kind));
  }
  return count;
}

void WriteAllDisks(std::ostream& out, const Machine& machine) {
  if (std::ranges::none_of(machine.controllers, HasDisks)) return;
  const bool isMany = CountDisks(machine) > kMostPrintedDisks;
  out << fmt::format("<h3 class=\"unseen\">All disks</h3>\n<ul class=\"units{}\">\n", isMany ? " many" : "");
  for (const Controller& controller : machine.controllers) {
    if (HasDisks(controller)) WriteDisks(out, controller);
  }
  out << "</ul>\n";
}

// Links to the disks to act on.
std::string DiskLinks(const Machine& machine, const Incident& incident) {
  std::vector<std::string> links;
  for (const DeviceRef& place : incident.disks) {
    if (links.size() == kMostLinks) {
      links.push_back(fmt::format("and {} more", incident.disks.size() - kMostLinks));
      break;
    }
    const Device& disk = DeviceOf(machine, place);
    const bool isThere = place.controller < machine.controllers.size();
    links.push_back(!isThere ? LocationOf(disk)
                             : fmt::format(R"(<a href="#object-{}">{}</a>)", disk.instance, LocationOf(disk)));
  }
  return fmt::format("{}", fmt::join(links, ", "));
}

void WriteIncident(std::ostream& out, const Machine& machine, const Incident& incident) {
  WriteIncidentHtml(out, incident, DiskLinks(machine, incident));
  if (const std::size_t count = incident.findings.size(); count > 0) {
    out << fmt::format("<p class=\"quiet\"><a href=\"#findings\">{} finding{}</a></p>", count, count == 1 ? "" : "s");
  }
  out << "</li>\n";
}

// The first printed sheet shows these instead of the cards, which begin on the second.
void WriteHeadlines(std::ostream& out, const Incidents& incidents) {
  out << "<ol class=\"headlines\">\n";
  const std::size_t count = std::min(incidents.size(), kMostPrintedHeadlines);
  for (std::size_t place = 0; place < count; ++place) {
    const Incident& incident = incidents[place];
    out << fmt::format("<li>{}: {}</li>\n", IncidentWord(incident), HtmlText(incident.headline));
  }
  if (count < incidents.size()) out << fmt::format("<li>and {} more</li>\n", incidents.size() - count);
  out << "</ol>\n";
}

void WriteIncidents(std::ostream& out, const Machine& machine) {
  const bool isMany = machine.incidents.size() > kMostPrintedCards;
  if (isMany) WriteHeadlines(out, machine.incidents);
  out << fmt::format("<ol class=\"incidents{}\">\n", isMany ? " many" : "");
  for (const Incident& incident : machine.incidents) WriteIncident(out, machine, incident);
  out << "</ol>\n";
}

}  // namespace

std::string SymbolHtml(Level level) {
  return fmt::format(R"(<span class="symbol" aria-hidden="true">{}</span>)", MarkOf(level).symbol);
}

void WriteVerdictHtml(std::ostream& out, Level level, std::string_view words) {
  out << fmt::format(R"(<p class="verdict level-{}">{} {}</p>)"
                     "\n",
                     LevelWord(level), SymbolHtml(level), HtmlText(words));
}

void WriteIncidentHtml(std::ostream& out, const Incident& incident, const std::string& links) {
  const Level level = incident.severity == Severity::kFine ? Level::kUnsaid : LevelOf(incident.severity);
  out << fmt::format(R"(<li class="incident level-{0}"><p><span class="badge level-{0}">{1}{2}</span> {3}</p>)",
                     LevelWord(level), SymbolHtml(level), IncidentWord(incident), links);
  out << fmt::format("\n<h3>{}</h3>\n<p>{}</p>\n", HtmlText(incident.headline), HtmlText(incident.action));
}

void WriteTitleHtml(std::ostream& out, const QueryHeader& header) {
  out << "RAID report: " << HtmlText(header.machine);
}

void WriteOriginHtml(std::ostream& out, const QueryHeader& header) {
  const std::string place = header.directory.empty() ? "" : " in " + HtmlText(header.directory);
  out << fmt::format("<p>Collected on {}{}</p>\n", HtmlText(ReadableTime(header.time.ToString())), place);
  if (header.isReplayed) out << fmt::format("<p>{}</p>\n", SourceNote(header));
}

void WriteSummaryHtml(std::ostream& out, const QueryHeader& header, const Machine& machine) {
  const std::vector<std::string_view> unjudged = UnjudgedClasses(header);
  WriteVerdict(out, machine, unjudged.empty());
  WriteLimits(out, header, unjudged);
  WriteAllDisks(out, machine);
  if (!machine.incidents.empty()) WriteIncidents(out, machine);
}

}  // namespace hxahost
