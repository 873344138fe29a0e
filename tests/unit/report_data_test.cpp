#include "host/hxahost/report_data.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/controller_columns.h"
#include "host/hxahost/record_sections.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using nlohmann::ordered_json;
using testing::ElementsAre;

ordered_json ReportData(const QueryHeader& header) {
  std::ostringstream out;
  WriteReportData(out, header);
  return ordered_json::parse(out.str());
}

std::vector<std::string> Texts(const ordered_json& objects, const char* key) {
  std::vector<std::string> texts;
  for (const auto& object : objects) texts.push_back(object[key]);
  return texts;
}

TEST(ReportData, SaysWhenWhereAndForWhatTheToolsWereRun) {
  const auto json = ReportData(
      {"MACHINE", "C:\\t\xf6ols", TCIMDateTime(2026, 3, 5, 12, 30, 15, 250000, -60), {"KVRSG_zxRawData"}, 3});
  EXPECT_EQ(json["directory"], "C:\\t\u00f6ols");
  EXPECT_EQ(json["time"], "20260305123015.250000-060");
  EXPECT_THAT(json["classes"], ElementsAre("KVRSG_zxRawData"));
  EXPECT_EQ(json["queryCount"], 3);
}

TEST(ReportData, HasTheTablesOfTheTerminalWithTheirColumns) {
  const auto json = ReportData({});
  std::vector<std::string> headings{"Controllers"};
  for (const DeviceKind& kind : DeviceKinds().subspan(1)) headings.emplace_back(kind.heading);
  for (const RecordSection& section : RecordSections()) headings.emplace_back(section.heading);
  EXPECT_EQ(Texts(json["tables"], "heading"), headings);

  const DeviceKind& disks = DeviceKinds().back();
  const auto& table = json["tables"][DeviceKinds().size() - 1];
  EXPECT_THAT(table["classes"], ElementsAre(disks.className));
  std::vector<std::string> properties;
  for (const InstanceColumn& column : disks.columns) properties.emplace_back(column.property);
  EXPECT_EQ(Texts(table["columns"], "property"), properties);
}

TEST(ReportData, MakesTheFactsOfAControllerColumns) {
  const auto json = ReportData({});
  std::vector<std::string> properties{"ControllerNum", "ControllerType", "ControllerStatus"};
  for (const Fact& fact : IdentityFacts()) properties.emplace_back(fact.property);
  for (const Fact& fact : StateFacts()) properties.emplace_back(fact.property);
  EXPECT_EQ(Texts(json["tables"][0]["columns"], "property"), properties);
}

}  // namespace
