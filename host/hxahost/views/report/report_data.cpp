#include "host/hxahost/views/report/report_data.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "host/hxacore/schema.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/result/unread_lines.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/finding_json.h"
#include "host/hxahost/views/tables/controller_columns.h"
#include "host/hxahost/views/tables/record_sections.h"

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
  for (const InstanceColumn& column : columns) json.push_back(ColumnJson(column.title, column.property));
  return json;
}

// What is in the heading of a controller's block elsewhere is a row here.
Json ControllerColumns() {
  Json json = Json::array();
  for (const auto facts : {std::span<const Fact>(kControllerNames), IdentityFacts(), StateFacts()}) {
    for (const Fact& fact : facts) json.push_back(ColumnJson(fact.label, fact.property));
  }
  return json;
}

// The same tables as on a terminal: what is added there is added here.
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

Json UnjudgedJson(const QueryHeader& header) {
  Json json = Json::array();
  for (const std::string_view className : HealthClasses()) {
    if (!IsAskedFor(header, className)) json.push_back(className);
  }
  return json;
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

template <class Kind>
Json InstancesJson(const std::vector<Kind>& objects, const std::vector<std::size_t>& places) {
  Json json = Json::array();
  for (const std::size_t place : places) json.push_back(objects[place].instance);
  return json;
}

// By controller, each with what belongs to it. Members are places of instances.
Json ObjectsJson(const Machine& machine) {
  Json json = Json::array();
  for (const Controller& controller : machine.controllers) {
    for (const ControllerUnit& unit : controller.units) json.push_back(ObjectJson(controller, unit));
    for (const LogicalDrive& drive : controller.logicalDrives) {
      json.push_back(ObjectJson(controller, drive));
      json.back()["groups"] = InstancesJson(controller.groups, drive.groups);
      json.back()["devices"] = InstancesJson(controller.devices, drive.devices);
    }
    for (const DiskGroup& group : controller.groups) {
      json.push_back(ObjectJson(controller, group));
      json.back()["devices"] = InstancesJson(controller.devices, group.devices);
    }
    for (const Device& device : controller.devices) {
      json.push_back(ObjectJson(controller, device));
      json.back()["channel"] = AsUtf8(device.channel);
      json.back()["id"] = AsUtf8(device.id);
    }
  }
  return json;
}

// In words, where they are more than labels.
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

void WriteReportData(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  const Machine machine = BuildMachine(header, result);
  Json json = Json::object();
  json["program"] = "hxahost " ZENX_VERSION;
  json["directory"] = AsUtf8(header.directory);
  json["time"] = header.time.ToString();
  if (header.isReplayed) json["source"] = SourceNote(header);
  json["classes"] = header.classes;
  json["queryCount"] = header.queryCount;
  json["tables"] = TablesJson();
  json["objects"] = ObjectsJson(machine);
  json["origins"] = OriginsJson(header);
  json["eventLevels"] = EventLevelsJson();
  json["findings"] = FindingsJson(machine.findings);
  json["unjudged"] = UnjudgedJson(header);
  json["unread"] = UnreadLinesJson(header, result);
  out << JsonText(json, 2);
}

}  // namespace hxahost
