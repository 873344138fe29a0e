#include <algorithm>
#include <chrono>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/machine/device_names.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/health_report.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

using Labels = std::vector<std::pair<std::string_view, std::string>>;

// The format knows three escapes. Other control characters are spelt out, so that the file can be looked at.
std::string LabelValue(const std::string& bytes) {
  std::string value;
  std::istringstream lines(AsUtf8(bytes));
  std::string separator;
  for (std::string line; std::getline(lines, line); separator = "\\n") {
    value += separator;
    for (const char character : EscapeControls(line)) {
      if (character == '\\' || character == '"') value += '\\';
      value += character;
    }
  }
  return value;
}

std::string LabelText(const Labels& labels) {
  std::string text;
  for (const auto& [name, value] : labels) {
    text += fmt::format("{}{}=\"{}\"", text.empty() ? "{" : ",", name, LabelValue(value));
  }
  return text.empty() ? text : text + "}";
}

// One metric. A reader refuses the whole file when a sample comes twice, which controllers of two utilities with one
// number can bring about: the larger value counts.
class Family {
 public:
  Family(std::string_view name, std::string_view help) : name_(name), help_(help) {}

  void Add(const Labels& labels, const std::string& value) {
    const auto [place, isNew] = places_.emplace(LabelText(labels), samples_.size());
    if (isNew) {
      samples_.emplace_back(place->first, value);
    } else if (std::stod(value) > std::stod(samples_[place->second].second)) {
      samples_[place->second].second = value;
    }
  }

  void Write(std::ostream& out) const {
    if (samples_.empty()) return;
    out << "# HELP " << name_ << ' ' << help_ << "\n# TYPE " << name_ << " gauge\n";
    for (const auto& [labels, value] : samples_) out << name_ << labels << ' ' << value << '\n';
  }

 private:
  std::string_view name_;
  std::string_view help_;
  std::vector<std::pair<std::string, std::string>> samples_;  // labels and value, in the order of their coming
  std::unordered_map<std::string, std::size_t> places_;       // of the labels among them
};

// A metric of one sample without labels.
void WriteNumber(std::ostream& out, std::string_view name, std::string_view help, const std::string& value) {
  Family family(name, help);
  family.Add({}, value);
  family.Write(out);
}

std::string SeverityNumber(Severity severity) { return std::to_string(static_cast<int>(severity)); }

void WriteStatus(std::ostream& out, const Findings& findings) {
  WriteNumber(out, "zenx_health_status", "The worst of all findings: 0 ok, 1 warning, 2 critical, 3 unknown.",
              SeverityNumber(WorstOf(findings)));
  Family counts("zenx_findings", "How many findings there are.");
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown}) {
    const Labels labels = {
        {"severity", std::string(SeverityWord(severity))}
    };
    counts.Add(labels, std::to_string(std::ranges::count(findings, severity, &Finding::severity)));
  }
  counts.Write(out);
}

// The text is left out: a count in it would make a new series each time that it changes.
void WriteFindingMetrics(std::ostream& out, const Findings& findings) {
  Family family("zenx_finding", "1 for each thing that is wrong or not known.");
  for (const Finding& finding : findings) {
    const Labels labels = {
        {"severity",   std::string(SeverityWord(finding.severity))},
        {"class",      finding.className                          },
        {"identifier", finding.identifier                         },
        {"property",   finding.property                           },
    };
    family.Add(labels, "1");
  }
  family.Write(out);
}

struct LabelSource {
  std::string_view label;
  std::string_view property;
};

constexpr LabelSource kControllerLabels[] = {
    {"controller", "ControllerNum" },
    {"model",      "ControllerType"},
};

constexpr LabelSource kDriveLabels[] = {
    {"controller", "ControllerNum"   },
    {"drive",      "LogicalDriveNum" },
    {"name",       "LogicalDriveName"},
    {"raid_level", "RaidLevel"       },
};

constexpr LabelSource kDiskLabels[] = {
    {"controller", "ControllerNum"},
    {"channel",    "Channel"      },
    {"id",         "ScsiId"       },
    {"type",       "DeviceType"   },
};

constexpr LabelSource kStripeLabels[] = {
    {"controller", "ControllerNum"},
    {"drive",      "LogicalDrive" },
};

Labels LabelValues(const TPublishedInstance& instance, std::span<const LabelSource> sources) {
  Labels labels = {
      {"identifier", IdentifierOf(instance)}
  };
  for (const LabelSource& source : sources) labels.emplace_back(source.label, RawText(instance, source.property));
  return labels;
}

// States that are shown with their severity.
struct StateFamily {
  std::string_view className;
  std::string_view name;
  std::span<const LabelSource> labels;
};

constexpr std::string_view kStateHelp = "0 ok, 1 warning, 2 critical, 3 unknown; state: as the utility prints it.";

constexpr StateFamily kStateFamilies[] = {
    {kControllerClass,  "zenx_controller_state",   kControllerLabels},
    {kLogicalDiskClass, "zenx_logical_disk_state", kDriveLabels     },
    {kDiskDriveClass,   "zenx_disk_state",         kDiskLabels      },
};

void WriteStates(std::ostream& out, const HealthReport& report) {
  for (const StateFamily& state : kStateFamilies) {
    Family family(state.name, kStateHelp);
    for (const Controller& controller : report.machine.controllers) {
      for (const Object* const object : ObjectsOf(controller, state.className)) {
        const Severity severity = SeverityOf(object->state.level);
        if (object->state.text.empty() && severity == Severity::kFine) continue;
        Labels labels = LabelValues(*report.result.instances[object->instance], state.labels);
        labels.emplace_back("state", object->state.text);
        family.Add(labels, SeverityNumber(severity));
      }
    }
    family.Write(out);
  }
}

void WriteBadStripes(std::ostream& out, const InstanceList& instances) {
  Family family("zenx_bad_stripes", "Stripes of the logical drive in which data was lost.");
  for (const auto& instance : instances) {
    const std::string count = RawText(*instance, "NumBadStripes");
    if (IsDigits(count)) family.Add(LabelValues(*instance, kStripeLabels), count);
  }
  family.Write(out);
}

struct CountFamily {
  std::string_view className;
  std::string_view name;
  std::string_view help;
};

constexpr CountFamily kCounts[] = {
    {kControllerClass,  "zenx_controllers",   "Controllers that were published."            },
    {kLogicalDiskClass, "zenx_logical_disks", "Logical drives that were published."         },
    {kDiskDriveClass,   "zenx_disks",         "Disks and other devices that were published."},
};

void WriteCountMetrics(std::ostream& out, const Machine& machine) {
  for (const CountFamily& count : kCounts) {
    WriteNumber(out, count.name, count.help, std::to_string(CountOf(machine, count.className)));
  }
}

// From the CIM form, yyyymmddhhmmss.mmmmmmsutc; nothing for a time that is none.
std::optional<long long> SecondsSince1970(const std::string& cim) {
  if (cim.size() != 25 || cim.find('*') != cim.npos) return std::nullopt;
  const auto number = [&cim](std::size_t begin, std::size_t length) { return std::stoi(cim.substr(begin, length)); };
  const std::chrono::year_month_day date(std::chrono::year(number(0, 4)),
                                         std::chrono::month(static_cast<unsigned>(number(4, 2))),
                                         std::chrono::day(static_cast<unsigned>(number(6, 2))));
  if (!date.ok()) return std::nullopt;
  const auto local = std::chrono::sys_days(date) + std::chrono::hours(number(8, 2)) +
                     std::chrono::minutes(number(10, 2)) + std::chrono::seconds(number(12, 2));
  const auto offset = std::chrono::minutes(number(22, 3)) * (cim[21] == '-' ? -1 : 1);
  return std::chrono::duration_cast<std::chrono::seconds>((local - offset).time_since_epoch()).count();
}

void WriteCollection(std::ostream& out, const HealthReport& report) {
  WriteNumber(out, "zenx_collection_seconds", "How long the collection took.", fmt::format("{:.3f}", report.seconds));
  const auto time = SecondsSince1970(report.header.time.ToString());
  if (!time) return;
  WriteNumber(out, "zenx_collection_timestamp_seconds", "When the collection began, in seconds since 1970.",
              std::to_string(*time));
}

}  // namespace

void WriteHealthMetrics(std::ostream& out, const HealthReport& report) {
  WriteStatus(out, report.machine.findings);
  WriteFindingMetrics(out, report.machine.findings);
  WriteStates(out, report);
  WriteBadStripes(out, report.result.instances);
  WriteCountMetrics(out, report.machine);
  WriteCollection(out, report);
}

}  // namespace hxahost
