#include "host/hxahost/fleet/fleet_rows.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/core.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/fleet/fleet_machine.h"
#include "host/hxahost/machine/cause.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/csv/csv_view.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

struct Row {
  std::string machine;
  std::string time;
  std::string kind;
  std::string path;  // programs recognise the object by it
  std::string level;
  std::string controller;
  std::string name;
  std::string location;
  std::string vendor;
  std::string model;
  std::string serialNumber;
  std::string fru;
  std::string firmware;
  std::string bytes;
  std::string state;
  std::string condition;  // of a disk: "failed", "predicted"
  std::string raidLevel;
  std::string headline;
  std::string action;
  std::string source;
};

struct Column {
  std::string_view title;
  std::string Row::*text;
};

// The first four are keys of a JSON line, the others are its properties.
constexpr std::size_t kKeys = 4;
constexpr Column kColumns[] = {
    {"machine",      &Row::machine     },
    {"time",         &Row::time        },
    {"class",        &Row::kind        },
    {"path",         &Row::path        },
    {"level",        &Row::level       },
    {"controller",   &Row::controller  },
    {"name",         &Row::name        },
    {"location",     &Row::location    },
    {"vendor",       &Row::vendor      },
    {"model",        &Row::model       },
    {"serialNumber", &Row::serialNumber},
    {"fru",          &Row::fru         },
    {"firmware",     &Row::firmware    },
    {"bytes",        &Row::bytes       },
    {"state",        &Row::state       },
    {"condition",    &Row::condition   },
    {"raidLevel",    &Row::raidLevel   },
    {"headline",     &Row::headline    },
    {"action",       &Row::action      },
    {"source",       &Row::source      },
};

constexpr std::string_view kKinds[] = {"machine", "incident", "controller", "logicalDrive", "disk", "damagedFile"};

std::string BytesText(const std::optional<std::uint64_t>& bytes) { return bytes ? std::to_string(*bytes) : ""; }

// The rows of one result.
class Rows {
 public:
  explicit Rows(const JudgedResult& judged) : judged_(judged) {
    Row& row = Begin("machine", judged.header.machine);
    row.level = SeverityWord(StateOf(judged.machine));
    row.source = judged.source;
    for (const Incident& incident : judged.machine.incidents) Add(incident);
    for (const Controller& controller : judged.machine.controllers) Add(controller);
  }

  std::vector<Row> Take() { return std::move(rows_); }

 private:
  Row& Begin(std::string_view kind, const std::string& path) {
    Row& row = rows_.emplace_back();
    row.machine = judged_.header.machine;
    row.time = judged_.read.time;
    row.kind = kind;
    row.path = path;
    return row;
  }

  Row& Begin(std::string_view kind, const Controller& controller, const Object& object) {
    Row& row = Begin(kind, object.identifier);
    row.controller = controller.label;
    row.name = object.name;
    row.level = LevelWord(object.level);
    row.state = object.state.text;
    return row;
  }

  void Add(const Incident& incident) {
    const auto& controllers = judged_.machine.controllers;
    Row& row = Begin("incident", incident.subject);
    row.level = IncidentWord(incident);
    if (incident.controller < controllers.size()) row.controller = controllers[incident.controller].label;
    row.name = incident.name;
    row.location = incident.location;
    row.headline = incident.headline;
    row.action = incident.action;
    if (incident.disks.empty()) return;
    const DeviceRef& disk = incident.disks.front();
    Describe(row, controllers[disk.controller].devices[disk.device]);
  }

  void Add(const Controller& controller) {
    for (const ControllerUnit& unit : controller.units) {
      Row& row = Begin("controller", controller, unit);
      row.model = unit.model;
      row.serialNumber = unit.serialNumber;
      row.firmware = unit.firmware;
    }
    for (const LogicalDrive& drive : controller.logicalDrives) {
      Row& row = Begin("logicalDrive", controller, drive);
      row.bytes = BytesText(drive.bytes);
      row.raidLevel = drive.raidLevel;
    }
    for (const Device& device : controller.devices) {
      if (device.kind != HardwareKind::kDisk) continue;
      Row& row = Begin("disk", controller, device);
      row.location = device.location;
      Describe(row, device);
      if (IsFailed(judged_.machine, device)) {
        row.condition = "failed";
      } else if (HasEffect(judged_.machine, device, Effect::kPredicted)) {
        row.condition = "predicted";
      }
    }
  }

  static void Describe(Row& row, const Device& device) {
    row.vendor = device.vendor;
    row.model = device.model;
    row.serialNumber = device.serialNumber;
    row.fru = device.fru;
    row.firmware = device.firmware;
    row.bytes = BytesText(device.bytes);
  }

  const JudgedResult& judged_;
  std::vector<Row> rows_;
};

Row RowOf(const DamagedFile& file) {
  Row row;
  row.kind = "damagedFile";
  row.path = file.file;
  row.level = SeverityWord(Severity::kUnknown);
  row.headline = file.reason;
  row.source = file.file;
  return row;
}

void WriteCsv(std::ostream& out, const Row& row) {
  std::vector<std::string> cells;
  for (const Column& column : kColumns) cells.push_back(AsUtf8(row.*(column.text)));
  WriteCsvCells(out, cells);
}

// Empty values are left out of the properties.
void WriteJson(std::ostream& out, const Row& row) {
  Json line;
  Json properties = Json::object();
  for (std::size_t place = 0; place < std::size(kColumns); ++place) {
    const std::string key(kColumns[place].title);
    const std::string& text = row.*(kColumns[place].text);
    if (place < kKeys) {
      line[key] = AsUtf8(text);
    } else if (kColumns[place].text == &Row::bytes && !text.empty()) {
      properties[key] = std::stoull(text);
    } else if (!text.empty()) {
      properties[key] = AsUtf8(text);
    }
  }
  line["properties"] = std::move(properties);
  out << JsonText(line) << '\n';
}

}  // namespace

void WriteCsvHeader(std::ostream& out) {
  std::vector<std::string> titles;
  for (const Column& column : kColumns) titles.emplace_back(column.title);
  WriteCsvCells(out, titles);
}

void WriteCsvRows(std::ostream& out, const JudgedResult& judged) {
  for (const Row& row : Rows(judged).Take()) WriteCsv(out, row);
}

void WriteCsvRow(std::ostream& out, const DamagedFile& file) { WriteCsv(out, RowOf(file)); }

void WriteJsonRows(std::ostream& out, const JudgedResult& judged) {
  for (const Row& row : Rows(judged).Take()) WriteJson(out, row);
  Json begin = {
      {"machine", judged.read.machine},
      {"time",    judged.read.time   }
  };
  if (judged.read.isReplayed) begin["replayed"] = true;
  if (judged.read.isMasked) begin["masked"] = true;
  for (const ResultInstance& instance : judged.read.instances) {
    if (std::ranges::count(kKinds, instance.className) > 0) continue;  // already written as rows
    Json line = begin;
    line["class"] = instance.className;
    line["path"] = instance.path;
    line["properties"] = instance.properties;
    out << JsonText(line) << '\n';
  }
}

void WriteJsonRow(std::ostream& out, const DamagedFile& file) { WriteJson(out, RowOf(file)); }

}  // namespace hxahost
