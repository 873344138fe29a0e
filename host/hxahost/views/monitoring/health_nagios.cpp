#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <string_view>

#include <fmt/core.h>

#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

constexpr std::size_t kLongestLine = 200;

// "|" begins the figures. Texts of incidents are printable already.
std::string WithoutBars(std::string_view text) {
  std::string safe;
  for (const char character : text) safe += character == '|' ? "\\x7c" : std::string(1, character);
  return safe;
}

// "'C4 temperature'=46": labels in quotes, each once.
class Figures {
 public:
  void Add(std::string_view label, double value, std::string_view unitAndRange = "") {
    std::string quoted;
    for (const char character : WithoutBars(label)) {
      quoted += character == '\'' ? "''" : std::string(1, character == '=' ? '_' : character);
    }
    if (!labels_.insert(quoted).second) return;
    text_ += fmt::format("{}'{}'={}{}", text_.empty() ? "" : " ", quoted, value, unitAndRange);
  }

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  std::set<std::string> labels_;
};

std::string FirstFigures(const HealthReport& report) {
  const Machine& machine = report.machine;
  std::string text;
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown}) {
    text += fmt::format("{}={} ", SeverityWord(severity),
                        std::ranges::count(machine.incidents, severity, &Incident::severity));
  }
  return text + fmt::format("controllers={}", CountOf(machine, kControllerClass));
}

constexpr std::string_view kPercentRange = "%;;;0;100";

void AddUnit(const std::string& controller, const ControllerUnit& unit, Figures& figures) {
  if (unit.celsius) figures.Add(controller + " temperature", *unit.celsius);
  if (unit.battery.percent) figures.Add(controller + " battery", *unit.battery.percent, kPercentRange);
  for (const Operation& operation : unit.operations) {
    if (!operation.isActive || !operation.percent) continue;
    const std::string drive = Printable(operation.logicalDrive);
    figures.Add(fmt::format("{} LD{} {}", controller, drive, Printable(NormalWord(operation.name))),
                std::round(*operation.percent), kPercentRange);
  }
}

// Sums for each controller: a label for each disk would be too many. Sums of the greatest counts are beyond integers.
void AddCounts(const std::string& name, const Controller& controller, Figures& figures) {
  double badStripes = 0;
  for (const LogicalDrive& drive : controller.logicalDrives) {
    badStripes += static_cast<double>(drive.badStripes.value_or(0));
  }
  if (!controller.logicalDrives.empty()) figures.Add(name + " bad stripes", badStripes);
  double hard = 0;
  double soft = 0;
  double parity = 0;
  bool isCounted = false;
  for (const Device& device : controller.devices) {
    if (!device.errors) continue;
    isCounted = true;
    hard += static_cast<double>(device.errors->hard);
    soft += static_cast<double>(device.errors->soft);
    parity += static_cast<double>(device.errors->parity);
  }
  if (!isCounted) return;
  figures.Add(name + " hard errors", hard, "c");
  figures.Add(name + " soft errors", soft, "c");
  figures.Add(name + " parity errors", parity, "c");
}

std::string FurtherFigures(const HealthReport& report) {
  const Machine& machine = report.machine;
  Figures figures;
  figures.Add("logical drives", static_cast<double>(CountOf(machine, kLogicalDiskClass)));
  figures.Add("devices", static_cast<double>(CountOf(machine, kDiskDriveClass)));
  figures.Add("time", std::round(report.seconds * 1000) / 1000, "s");
  for (const Controller& controller : machine.controllers) {
    const std::string name = ShortName(controller);
    for (const ControllerUnit& unit : controller.units) AddUnit(name, unit, figures);
    AddCounts(name, controller, figures);
  }
  return figures.Text();
}

// "PULL enclosure 0, slot 8" of "PULL enclosure 0, slot 8: NORDVIK NV73-15SAS 73.4 GB, S/N NV3LE77Q2H".
std::string_view Beginning(std::string_view action) {
  for (const std::string_view end : {": ", "; ", ". "}) action = action.substr(0, action.find(end));
  return action.ends_with('.') ? action.substr(0, action.size() - 1) : action;
}

std::string FirstLine(const HealthReport& report) {
  const Machine& machine = report.machine;
  const std::string head = fmt::format("ZENX {} - ", Upper(SeverityWord(WorstOf(machine.findings))));
  const std::string figures = " | " + FirstFigures(report);
  const auto isWrong = [](const Incident& incident) { return incident.severity != Severity::kFine; };
  const auto wrong = std::ranges::count_if(machine.incidents, isWrong);
  std::string text = "no fault found: " + Inventory(machine);
  if (wrong > 0) {
    const Incident& worst = machine.incidents.front();
    const std::string_view action = Beginning(worst.action);
    text = WithoutBars(fmt::format("{}{}{}", worst.headline, action.empty() ? "" : ": ", action));
  }
  const std::string more = wrong > 1 ? fmt::format(" (+{} more)", wrong - 1) : "";
  const std::size_t room = kLongestLine - head.size() - more.size() - figures.size();
  return head + CutToWidth(text, room) + more + figures;
}

}  // namespace

void WriteHealthNagios(std::ostream& out, const HealthReport& report) {
  out << FirstLine(report) << '\n';
  for (const Incident& incident : report.machine.incidents) {
    const std::string_view separator = incident.action.empty() ? "" : ": ";
    out << WithoutBars(fmt::format("{}: {}{}{}", IncidentWord(incident), incident.headline, separator, incident.action))
        << '\n';
  }
  if (report.header.isReplayed) out << SourceNote(report.header) << '\n';
  out << "| " << FurtherFigures(report) << '\n';
}

void WriteNagiosFailure(std::ostream& out, std::string_view message) {
  constexpr std::string_view kHead = "ZENX UNKNOWN - ";
  out << kHead << CutToWidth(WithoutBars(Printable(message)), kLongestLine - kHead.size()) << std::endl;
}

}  // namespace hxahost
