#include "host/hxahost/report_data.h"

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "host/hxahost/controller_columns.h"
#include "host/hxahost/record_sections.h"
#include "host/hxahost/text.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

constexpr Fact kControllerNames[] = {
    {"Controller", "ControllerNum"   },
    {"Type",       "ControllerType"  },
    {"Status",     "ControllerStatus"},
};

Json ColumnJson(std::string_view title, std::string_view property) {
  Json column = Json::object();
  column["title"] = title;
  column["property"] = property;
  return column;
}

Json TableJson(std::string_view heading, std::span<const std::string_view> classes, Json columns) {
  Json table = Json::object();
  table["heading"] = heading;
  table["classes"] = classes;
  table["columns"] = std::move(columns);
  return table;
}

Json ColumnsJson(std::span<const InstanceColumn> columns) {
  Json json = Json::array();
  for (const InstanceColumn& column : columns) json.push_back(ColumnJson(column.title, column.property));
  return json;
}

// What stands in the heading of a controller's block elsewhere is a row here.
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

}  // namespace

void WriteReportData(std::ostream& out, const QueryHeader& header) {
  Json json = Json::object();
  json["program"] = "hxahost " ZENX_VERSION;
  json["directory"] = AsUtf8(header.directory);
  json["time"] = header.time.ToString();
  json["classes"] = header.classes;
  json["queryCount"] = header.queryCount;
  json["tables"] = TablesJson();
  out << json.dump(2);
}

}  // namespace hxahost
