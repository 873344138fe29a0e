#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/views/monitoring/health_report.h"
#include "host/hxahost/views/monitoring/incident_labels.h"
#include "host/hxahost/views/monitoring/metric_family.h"

// The labels of a series identify an object and do not change with its state. Changing facts are values, or texts of a
// series *_info.
namespace hxahost {

namespace {

using Number = std::optional<double>;

double NumberOf(Severity severity) { return static_cast<double>(severity); }

// A metric of one sample.
void WriteNumber(std::ostream& out, const MetricName& name, double value, const Labels& labels = {}) {
  MetricFamily family(name);
  family.Add(labels, value);
  family.Write(out);
}

Labels LabelsOf(const Controller& controller, const ControllerUnit&) { return ControllerLabels(controller); }

Labels LabelsOf(const Controller& controller, const LogicalDrive& drive) {
  Labels labels = ControllerLabels(controller);
  labels.emplace_back("drive", drive.number);
  return labels;
}

// "0,8", as the utilities write channel and ID.
Labels LabelsOf(const Controller& controller, const Device& device) {
  Labels labels = ControllerLabels(controller);
  const bool hasPlace = !device.channel.empty() || !device.id.empty();
  labels.emplace_back("disk", hasPlace ? device.channel + "," + device.id : device.identifier);
  return labels;
}

// ---- Values and texts of objects: rows of tables

constexpr std::string_view kGauge = "gauge";
constexpr std::string_view kCounter = "counter";

template <class Kind>
struct ObjectValue {
  std::string_view name;
  std::string_view help;
  std::string_view type;
  Number (*read)(const Kind& object);
};

template <class Kind>
struct ObjectText {
  std::string_view label;
  std::string Kind::*text;
};

template <class Kind>
Number StateOf(const Kind& object) {
  return NumberOf(SeverityOf(object.level));
}

template <class Kind>
Number SizeOf(const Kind& object) {
  return object.bytes ? Number(static_cast<double>(*object.bytes)) : std::nullopt;
}

template <std::uint64_t ErrorCounts::*count>
Number ErrorsOf(const Device& device) {
  return device.errors ? Number(static_cast<double>((*device.errors).*count)) : std::nullopt;
}

Number BadStripesOf(const LogicalDrive& drive) {
  return drive.badStripes ? Number(static_cast<double>(*drive.badStripes)) : std::nullopt;
}

Number CelsiusOf(const ControllerUnit& unit) { return unit.celsius; }

Number BatteryStateOf(const ControllerUnit& unit) {
  return unit.battery.state.text.empty() ? std::nullopt : Number(NumberOf(SeverityOf(unit.battery.state.level)));
}

constexpr double kPercent = 100.0;

Number ChargeOf(const ControllerUnit& unit) {
  return unit.battery.percent ? Number(*unit.battery.percent / kPercent) : std::nullopt;
}

constexpr std::string_view kStateHelp = "As it is judged: 0 ok, 1 warning, 2 critical, 3 unknown.";

constexpr ObjectValue<ControllerUnit> kUnitValues[] = {
    {"zenx_controller_state",               kStateHelp,                               kGauge, StateOf<ControllerUnit>},
    {"zenx_controller_temperature_celsius", "Temperature of the controller.",         kGauge, CelsiusOf              },
    {"zenx_battery_state",                  kStateHelp,                               kGauge, BatteryStateOf         },
    {"zenx_battery_charge_ratio",           "Charge of the cache's battery, 0 to 1.", kGauge, ChargeOf               },
};

constexpr ObjectValue<LogicalDrive> kDriveValues[] = {
    {"zenx_logical_drive_state",       kStateHelp,                        kGauge, StateOf<LogicalDrive>},
    {"zenx_logical_drive_size_bytes",  "Size of the logical drive.",      kGauge, SizeOf<LogicalDrive> },
    {"zenx_logical_drive_bad_stripes", "Stripes in which data was lost.", kGauge, BadStripesOf         },
};

constexpr ObjectValue<Device> kDeviceValues[] = {
    {"zenx_disk_state",               kStateHelp,                        kGauge,   StateOf<Device>               },
    {"zenx_disk_size_bytes",          "Size of the disk.",               kGauge,   SizeOf<Device>                },
    {"zenx_disk_hard_errors_total",   "Errors that were not corrected.", kCounter, ErrorsOf<&ErrorCounts::hard>  },
    {"zenx_disk_soft_errors_total",   "Errors that were corrected.",     kCounter, ErrorsOf<&ErrorCounts::soft>  },
    {"zenx_disk_parity_errors_total", "Errors of transfers.",            kCounter, ErrorsOf<&ErrorCounts::parity>},
    {"zenx_disk_other_errors_total",  "Other errors.",                   kCounter, ErrorsOf<&ErrorCounts::other> },
};

constexpr ObjectText<ControllerUnit> kUnitTexts[] = {
    {"model",    &ControllerUnit::model       },
    {"serial",   &ControllerUnit::serialNumber},
    {"firmware", &ControllerUnit::firmware    },
};

constexpr ObjectText<LogicalDrive> kDriveTexts[] = {
    {"name",       &LogicalDrive::title    },
    {"raid_level", &LogicalDrive::raidLevel},
};

constexpr ObjectText<Device> kDeviceTexts[] = {
    {"location", &Device::location    },
    {"type",     &Device::type        },
    {"vendor",   &Device::vendor      },
    {"model",    &Device::model       },
    {"serial",   &Device::serialNumber},
    {"fru",      &Device::fru         },
    {"firmware", &Device::firmware    },
};

template <class Kind>
void WriteObjects(std::ostream& out, const Machine& machine, std::vector<Kind> Controller::*objects,
                  const MetricName& info, std::span<const ObjectText<Kind>> texts,
                  std::span<const ObjectValue<Kind>> values) {
  MetricFamily infos(info);
  for (const Controller& controller : machine.controllers) {
    for (const Kind& object : controller.*objects) {
      Labels labels = LabelsOf(controller, object);
      for (const ObjectText<Kind>& text : texts) labels.emplace_back(text.label, object.*(text.text));
      infos.Add(labels, 1);
    }
  }
  infos.Write(out);
  for (const ObjectValue<Kind>& value : values) {
    MetricFamily family({value.name, value.help, value.type});
    for (const Controller& controller : machine.controllers) {
      for (const Kind& object : controller.*objects) {
        if (const Number number = value.read(object)) family.Add(LabelsOf(controller, object), *number);
      }
    }
    family.Write(out);
  }
}

void WriteOperations(std::ostream& out, const Machine& machine) {
  MetricFamily family({"zenx_operation_ratio", "Part of a running operation that is done, 0 to 1."});
  for (const Controller& controller : machine.controllers) {
    for (const ControllerUnit& unit : controller.units) {
      for (const Operation& operation : unit.operations) {
        if (!operation.isActive || !operation.percent) continue;
        Labels labels = ControllerLabels(controller);
        labels.emplace_back("drive", operation.logicalDrive);
        labels.emplace_back("operation", NormalWord(operation.name));
        family.Add(labels, *operation.percent / kPercent);
      }
    }
  }
  family.Write(out);
}

// ---- Incidents

double NumberOf(Urgency urgency) {
  switch (urgency) {
    case Urgency::kWait: return 1;
    case Urgency::kReplace: return 2;
    case Urgency::kRestore: return 3;
    case Urgency::kOther: break;
  }
  return 0;
}

void WriteIncidents(std::ostream& out, const Machine& machine) {
  MetricFamily counts({"zenx_incidents", "How many incidents there are."});
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown}) {
    const auto count = std::ranges::count(machine.incidents, severity, &Incident::severity);
    counts.Add(
        {
            {"severity", std::string(SeverityWord(severity))}
    },
        static_cast<double>(count));
  }
  MetricFamily severities({"zenx_incident", "One cause of trouble: 0 information, 1 warning, 2 critical, 3 unknown."});
  MetricFamily actions({"zenx_incident_action",
                        "What the incident calls for: 0 see hxahost health, 1 wait for the end of a rebuild, 2 replace "
                        "the disk, 3 restore from a backup."});
  MetricFamily texts({"zenx_incident_info", "What the incident is about, and the first disk to act on."});
  for (const Incident& incident : machine.incidents) {
    const Labels labels = IncidentLabels(machine, incident);
    severities.Add(labels, NumberOf(incident.severity));
    actions.Add(labels, NumberOf(incident.urgency));
    texts.Add(IncidentTexts(machine, incident), 1);
  }
  for (const MetricFamily* const family : {&counts, &severities, &actions, &texts}) family->Write(out);
}

// ---- The collection

struct CountMetric {
  std::string_view className;
  MetricName metric;
};

constexpr CountMetric kCounts[] = {
    {kControllerClass,  {"zenx_controllers", "Controllers that were published."}      },
    {kLogicalDiskClass, {"zenx_logical_drives", "Logical drives that were published."}},
    {kDiskDriveClass,   {"zenx_disks", "Disks and other devices that were published."}},
};

void WriteTools(std::ostream& out, const HealthReport& report) {
  MetricFamily family({"zenx_tool_up", "1 where the utility was run and nothing went wrong, else 0."});
  for (const ToolHealth& each : ToolHealthOf(report)) {
    if (std::ranges::find(report.machine.absentTools, each.tool) != report.machine.absentTools.end()) continue;
    family.Add(
        {
            {"tool", std::string(each.tool)}
    },
        each.isUp ? 1 : 0);
  }
  family.Write(out);
}

void WriteCollection(std::ostream& out, const HealthReport& report) {
  WriteNumber(out,
              {
                  "zenx_build_info", "The version that collected."
  },
              1, {{"version", ZENX_VERSION}});
  WriteNumber(out, {"zenx_collection_duration_seconds", "How long the collection took."}, report.seconds);
  const auto time = SecondsSince1970(report.header.time.ToString());
  if (!time) return;
  WriteNumber(out, {"zenx_collection_timestamp_seconds", "When the collection began, in seconds since 1970."},
              static_cast<double>(*time));
}

}  // namespace

void WriteHealthMetrics(std::ostream& out, const HealthReport& report) {
  const Machine& machine = report.machine;
  if (report.header.isReplayed) out << "# " << SourceNote(report.header) << '\n';
  WriteNumber(out, {"zenx_health_status", "The worst of all findings: 0 ok, 1 warning, 2 critical, 3 unknown."},
              NumberOf(WorstOf(machine.findings)));
  WriteIncidents(out, machine);
  WriteObjects<ControllerUnit>(out, machine, &Controller::units, {"zenx_controller_info", "What the controller is."},
                               kUnitTexts, kUnitValues);
  WriteOperations(out, machine);
  WriteObjects<LogicalDrive>(out, machine, &Controller::logicalDrives,
                             {"zenx_logical_drive_info", "What the logical drive is."}, kDriveTexts, kDriveValues);
  WriteObjects<Device>(out, machine, &Controller::devices, {"zenx_disk_info", "What the disk is, and where."},
                       kDeviceTexts, kDeviceValues);
  for (const CountMetric& count : kCounts) {
    WriteNumber(out, count.metric, static_cast<double>(CountOf(machine, count.className)));
  }
  WriteTools(out, report);
  WriteCollection(out, report);
}

}  // namespace hxahost
