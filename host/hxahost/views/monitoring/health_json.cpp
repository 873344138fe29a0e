#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include <nlohmann/json.hpp>

#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/finding_json.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

// The results of the function for each item, as a list.
template <class Items, class ToJson>
Json ListOf(const Items& items, ToJson toJson) {
  Json list = Json::array();
  for (const auto& item : items) list.push_back(toJson(item));
  return list;
}

template <class Value>
Json ValueOrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json();
}

template <class Kind>
struct TextKey {
  std::string_view key;
  std::string Kind::*text;
};

template <class Kind>
void AddTexts(Json& json, const Kind& object, std::span<const TextKey<Kind>> keys) {
  for (const TextKey<Kind>& key : keys) json[std::string(key.key)] = AsUtf8(object.*(key.text));
}

constexpr TextKey<LogicalDrive> kDriveTexts[] = {
    {"number",    &LogicalDrive::number   },
    {"title",     &LogicalDrive::title    },
    {"raidLevel", &LogicalDrive::raidLevel},
    {"size",      &LogicalDrive::size     },
};

constexpr TextKey<Device> kDeviceTexts[] = {
    {"location",     &Device::location    },
    {"channel",      &Device::channel     },
    {"id",           &Device::id          },
    {"type",         &Device::type        },
    {"vendor",       &Device::vendor      },
    {"model",        &Device::model       },
    {"serialNumber", &Device::serialNumber},
    {"fru",          &Device::fru         },
    {"firmware",     &Device::firmware    },
    {"size",         &Device::size        },
};

Json ObjectJson(const Object& object) {
  return {
      {"identifier", AsUtf8(object.identifier)},
      {"name",       AsUtf8(object.name)      },
      {"level",      LevelWord(object.level)  },
      {"state",      AsUtf8(object.state.text)},
  };
}

Json OperationJson(const Operation& operation) {
  return {
      {"name",         AsUtf8(operation.name)        },
      {"logicalDrive", AsUtf8(operation.logicalDrive)},
      {"status",       AsUtf8(operation.status)      },
      {"isActive",     operation.isActive            },
      {"percent",      ValueOrNull(operation.percent)},
  };
}

Json BatteryJson(const Battery& battery) {
  return {
      {"level",         LevelWord(battery.state.level)},
      {"state",         AsUtf8(battery.state.text)    },
      {"percent",       ValueOrNull(battery.percent)  },
      {"timeRemaining", AsUtf8(battery.timeRemaining) },
  };
}

Json UnitJson(const ControllerUnit& unit) {
  Json json = ObjectJson(unit);
  json["model"] = AsUtf8(unit.model);
  json["serialNumber"] = AsUtf8(unit.serialNumber);
  json["firmware"] = AsUtf8(unit.firmware);
  json["celsius"] = ValueOrNull(unit.celsius);
  json["battery"] = BatteryJson(unit.battery);
  json["operations"] = ListOf(unit.operations, OperationJson);
  return json;
}

Json DriveJson(const LogicalDrive& drive) {
  Json json = ObjectJson(drive);
  AddTexts<LogicalDrive>(json, drive, kDriveTexts);
  json["bytes"] = ValueOrNull(drive.bytes);
  json["badStripes"] = ValueOrNull(drive.badStripes);
  json["devices"] = drive.members;
  return json;
}

Json GroupJson(const DiskGroup& group) {
  Json json = ObjectJson(group);
  json["devices"] = group.devices;
  return json;
}

std::string_view WordOf(HardwareKind kind) {
  constexpr std::string_view kWords[] = {"disk", "tape", "enclosure", "other"};
  return kWords[static_cast<std::size_t>(kind)];
}

Json DeviceJson(const Device& device) {
  Json json = ObjectJson(device);
  json["kind"] = WordOf(device.kind);
  AddTexts<Device>(json, device, kDeviceTexts);
  json["bytes"] = ValueOrNull(device.bytes);
  json["logicalDrives"] = device.logicalDrives;
  json["errors"] = nullptr;
  if (const auto& errors = device.errors) {
    json["errors"] = {
        {"hard",   errors->hard  },
        {"soft",   errors->soft  },
        {"parity", errors->parity},
        {"other",  errors->other },
    };
  }
  return json;
}

Json ControllerJson(const Controller& controller) {
  Json json;
  json["number"] = AsUtf8(controller.number);
  json["label"] = AsUtf8(controller.label);
  json["tool"] = controller.tool;
  json["units"] = ListOf(controller.units, UnitJson);
  json["logicalDrives"] = ListOf(controller.logicalDrives, DriveJson);
  json["groups"] = ListOf(controller.groups, GroupJson);
  json["devices"] = ListOf(controller.devices, DeviceJson);
  return json;
}

std::string_view WordOf(Urgency urgency) {
  constexpr std::string_view kWords[] = {"restore", "replace", "wait", "other"};
  return kWords[static_cast<std::size_t>(urgency)];
}

Json ToolJson(const ToolHealth& tool) {
  return {
      {"tool",        tool.tool       },
      {"isUp",        tool.isUp       },
      {"isInstalled", tool.isInstalled},
  };
}

}  // namespace

Json IncidentJson(const Machine& machine, const Incident& incident) {
  const bool isOfController = incident.controller < machine.controllers.size();
  const std::string controller = isOfController ? machine.controllers[incident.controller].label : "";
  Json disks = Json::array();
  for (const DeviceRef& disk : incident.disks) {
    disks.push_back(DeviceJson(DeviceOf(machine, disk)));
  }
  return {
      {"severity",   IncidentWord(incident)   },
      {"subject",    AsUtf8(incident.subject) },
      {"controller", AsUtf8(controller)       },
      {"name",       AsUtf8(incident.name)    },
      {"headline",   AsUtf8(incident.headline)},
      {"urgency",    WordOf(incident.urgency) },
      {"action",     AsUtf8(incident.action)  },
      {"location",   AsUtf8(incident.location)},
      {"disks",      std::move(disks)         },
      {"findings",   incident.findings        },
  };
}

void WriteHealthJson(std::ostream& out, const HealthReport& report) {
  const Machine& machine = report.machine;
  Json incidents = Json::array();
  for (const Incident& incident : machine.incidents) incidents.push_back(IncidentJson(machine, incident));
  Json json = {
      {"format",  1                                      },
      {"machine", AsUtf8(report.header.machine)          },
      {"time",    report.header.time.ToString()          },
      {"status",  SeverityWord(WorstOf(machine.findings))},
  };
  json["findings"] = ListOf(machine.findings, FindingJson);
  json["incidents"] = std::move(incidents);
  json["controllers"] = ListOf(machine.controllers, ControllerJson);
  json["tools"] = ListOf(ToolHealthOf(report), ToolJson);
  if (report.header.isReplayed) json["replayed"] = true;
  if (report.header.isMasked) json["masked"] = true;
  out << JsonText(json, 2) << '\n';
}

}  // namespace hxahost
