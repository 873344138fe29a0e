#include "host/hxahost/views/report/report_data.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <fmt/core.h>
#include <nlohmann/json.hpp>

#include "host/hxacore/schema.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/machine/kept_events.h"
#include "host/hxahost/result/unread_lines.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/controller_columns.h"
#include "host/hxahost/views/monitoring/finding_json.h"
#include "host/hxahost/views/record_columns.h"
#include "host/hxahost/views/report/level_marks.h"

using NKVRHXA20::ClassDeclaration;
using NKVRHXA20::PropertyDeclaration;
using NKVRHXA20::PublishedClasses;

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

constexpr Fact kControllerNames[] = {
    {"Controller", "ControllerNum"   },
    {"Type",       "ControllerType"  },
    {"Status",     "ControllerStatus"},
};

Json ColumnJson(std::string_view title, std::string_view property) {
  return {
      {"title",    title   },
      {"property", property}
  };
}

Json TableJson(std::string_view heading, std::span<const std::string_view> classes, const Json& columns) {
  return {
      {"heading", heading},
      {"classes", classes},
      {"columns", columns}
  };
}

Json ColumnsJson(std::span<const InstanceColumn> columns) {
  Json json = Json::array();
  for (const InstanceColumn& column : columns) {
    if (!column.property.empty()) json.push_back(ColumnJson(column.title, column.property));
  }
  return json;
}

// The facts in the heading of a controller's block, as rows.
Json ControllerColumns() {
  Json json = Json::array();
  for (const auto facts : {std::span<const Fact>(kControllerNames), IdentityFacts(), StateFacts()}) {
    for (const Fact& fact : facts) json.push_back(ColumnJson(fact.label, fact.property));
  }
  return json;
}

// The same tables as on a terminal: a table that is added there also appears in the report.
Json TablesJson() {
  Json tables = Json::array();
  for (const DeviceKind& kind : DeviceKinds()) {
    const bool isController = kind.columns.empty();
    tables.push_back(TableJson(isController ? "Controllers" : kind.heading, {&kind.className, 1},
                               isController ? ControllerColumns() : ColumnsJson(kind.columns)));
  }
  for (const RecordSection& section : RecordSections()) {
    tables.push_back(TableJson(section.heading, section.classes, ColumnsJson(section.columns)));
  }
  return tables;
}

Json FindingsJson(const Findings& findings) {
  Json json = Json::array();
  for (const Finding& finding : findings) {
    json.push_back(FindingJson(finding));
    if (finding.instance) json.back()["instance"] = *finding.instance;
  }
  return json;
}

Json ObjectJson(const Controller& controller, const Object& object) {
  return {
      {"instance",   object.instance              },
      {"owner",      AsUtf8(controller.label)     },
      {"level",      LevelWord(object.level)      },
      {"stateLevel", LevelWord(object.state.level)},
  };
}

// The title of an object's box, and the lines below its state.
Json BoxJson(const Controller& controller, const Object& object, const std::string& title,
             const std::vector<std::string>& lines) {
  Json json = ObjectJson(controller, object);
  json["title"] = AsUtf8(title);
  json["lines"] = Json::array();
  for (const std::string& line : lines) {
    if (!line.empty()) json["lines"].push_back(AsUtf8(line));
  }
  return json;
}

template <class Kind>
Json InstancesJson(const std::vector<Kind>& objects, const std::vector<std::size_t>& places) {
  Json json = Json::array();
  for (const std::size_t place : places) json.push_back(objects[place].instance);
  return json;
}

template <class Kind>
std::string SizeOf(const Kind& object) {
  return object.bytes ? FormatBytes(*object.bytes) : Printable(object.size);
}

std::string Joined(const std::string& one, const std::string& other) {
  return one.empty() || other.empty() ? one + other : one + ", " + other;
}

Json DriveJson(const Controller& controller, const LogicalDrive& drive) {
  const std::string number = drive.title.empty() ? "" : "Logical drive " + Printable(drive.number);
  const std::size_t count = drive.members.size();
  const std::string disks = fmt::format("{} disk{}", count, count == 1 ? "" : "s");
  Json json = BoxJson(controller, drive, ShortName(drive), {number, Joined(SizeOf(drive), disks)});
  json["groups"] = InstancesJson(controller.groups, drive.groups);
  json["devices"] = InstancesJson(controller.devices, drive.members);
  return json;
}

Json GroupJson(const Controller& controller, const DiskGroup& group) {
  Json json = ObjectJson(controller, group);
  json["devices"] = InstancesJson(controller.devices, group.devices);
  return json;
}

// The use of a device, in a few words, as the drawing also shows the drives.
std::string UseOf(const Controller& controller, std::size_t place) {
  const Device& device = controller.devices[place];
  if (device.kind != HardwareKind::kDisk) return Printable(device.type);
  if (device.logicalDrives.empty()) return RoleOf(controller, place);
  std::string names;
  for (const std::size_t index : device.logicalDrives) {
    const LogicalDrive& drive = controller.logicalDrives[index];
    names = Joined(names, drive.title.empty() ? "logical drive " + Printable(drive.number) : Printable(drive.title));
  }
  return names;
}

Json DeviceJson(const Controller& controller, std::size_t place) {
  const Device& device = controller.devices[place];
  const std::string serial = device.serialNumber.empty() ? "" : "S/N " + Printable(device.serialNumber);
  return BoxJson(controller, device, Printable(device.location.empty() ? device.name : device.location),
                 {Joined(Printable(device.model), SizeOf(device)), serial, UseOf(controller, place)});
}

// The objects of each controller. Members are places of instances.
Json ObjectsJson(const Machine& machine) {
  Json json = Json::array();
  for (const Controller& controller : machine.controllers) {
    for (const ControllerUnit& unit : controller.units) {
      json.push_back(BoxJson(controller, unit, "Controller " + Printable(controller.label), {Printable(unit.model)}));
    }
    for (const LogicalDrive& drive : controller.logicalDrives) json.push_back(DriveJson(controller, drive));
    for (const DiskGroup& group : controller.groups) json.push_back(GroupJson(controller, group));
    for (std::size_t place = 0; place < controller.devices.size(); ++place) {
      json.push_back(DeviceJson(controller, place));
    }
  }
  return json;
}

// In words, if they contain more than labels.
Json OriginsJson(const QueryHeader& header) {
  Json json = Json::object();
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    if (!IsAskedFor(header, declaration.name)) continue;
    for (const PropertyDeclaration& property : declaration.properties) {
      if (property.origin.empty()) continue;
      json[std::string(declaration.name)][std::string(property.name)] = property.origin;
    }
  }
  return json;
}

Json EventLevelsJson() {
  Json json = Json::object();
  for (const EventSeverity& each : EventSeverities()) json[std::string(each.word)] = LevelWord(each.level);
  return json;
}

Json UnreadLinesJson(const QueryHeader& header, const QueryResult& result) {
  const bool isWhole = std::ranges::all_of(
      PublishedClasses(), [&header](const ClassDeclaration& each) { return IsAskedFor(header, each.name); });
  if (!isWhole) return nullptr;
  Json json = Json::array();
  for (const UnreadText& text : FindUnreadLines(result.instances)) {
    json.push_back({
        {"instance", text.instance},
        {"lines",    text.unread  }
    });
  }
  return json;
}

}  // namespace

Json LevelsJson() {
  Json json = Json::array();
  for (const LevelMark& mark : LevelMarks()) {
    json.push_back({
        {"level",  LevelWord(mark.level)},
        {"symbol", mark.symbol          },
        {"words",  mark.words           }
    });
  }
  return json;
}

void WriteReportData(std::ostream& out, const QueryHeader& header, const QueryResult& result, const Machine& machine) {
  Json json = Json::object();
  json["program"] = "hxahost " ZENX_VERSION;
  json["classes"] = header.classes;
  json["levels"] = LevelsJson();
  json["tables"] = TablesJson();
  json["objects"] = ObjectsJson(machine);
  json["origins"] = OriginsJson(header);
  json["eventLevels"] = EventLevelsJson();
  if (const std::string note = EventNote(result); !note.empty()) json["eventNote"] = note;
  json["findings"] = FindingsJson(machine.findings);
  json["unread"] = UnreadLinesJson(header, result);
  out << JsonText(json, 2);
}

}  // namespace hxahost
