#include "host/hxahost/views/report/report_data.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/views/controller_columns.h"
#include "host/hxahost/views/record_columns.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using nlohmann::ordered_json;
using testing::ElementsAre;

ordered_json ReportData(const QueryHeader& header, const QueryResult& result = {}) {
  std::ostringstream out;
  WriteReportData(out, header, result, BuildMachine(header, result));
  return ordered_json::parse(out.str());
}

std::vector<std::string> Texts(const ordered_json& objects, const char* key) {
  std::vector<std::string> texts;
  for (const auto& object : objects) texts.push_back(object[key]);
  return texts;
}

TEST(ReportData, NamesTheClassesThatWereAskedForAndEveryLevelOnce) {
  const auto json = ReportData({"MACHINE", "", {}, {"KVRSG_zxRawData"}, 1});
  EXPECT_THAT(json["classes"], ElementsAre("KVRSG_zxRawData"));
  EXPECT_THAT(Texts(json["levels"], "level"),
              ElementsAre("critical", "warning", "unknown", "busy", "idle", "unsaid", "ok"));
}

TEST(ReportData, HasTheTextsOfEachBox) {
  HealthyMachine machine;
  for (HealthyMachine::Device& device : machine.devices) {
    if (device.className != "KVRSG_zxDiskDrive") continue;
    device.properties.insert(device.properties.end(), {
                                                          {"Model",            "M73"                },
                                                          {"Size",             "70007 MB"           },
                                                          {"DeviceSerialNum",  "S-1"                },
                                                          {"ReportedLocation", "Enclosure 0, Slot 1"}
    });
  }
  std::vector<ordered_json> boxes;
  const auto data = ReportData(machine.Header(), machine.Result());
  for (const auto& each : data["objects"]) {
    if (each["owner"] == "2" && each.contains("title")) boxes.push_back({each["title"], each["lines"]});
  }
  ASSERT_EQ(boxes.size(), 7U);
  EXPECT_EQ(boxes[0].dump(), R"(["Controller 2",["Zentraxis C5"]])");
  EXPECT_EQ(boxes[1].dump(), R"box(["\"Data\" (RAID 5)",["Logical drive 1","2 disks"]])box");
  EXPECT_EQ(boxes[2].dump(), R"(["enclosure 0, slot 1",["M73, 73.4 GB","S/N S-1","Data"]])");
  EXPECT_EQ(boxes[4][1][2], "hot spare");
  EXPECT_EQ(boxes[6][1][2], "Tape drive");
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
  for (const InstanceColumn& column : disks.columns) {
    if (!column.property.empty()) properties.emplace_back(column.property);
  }
  EXPECT_EQ(Texts(table["columns"], "property"), properties);
}

TEST(ReportData, MakesTheFactsOfAControllerColumns) {
  const auto json = ReportData({});
  std::vector<std::string> properties{"ControllerNum", "ControllerType", "ControllerStatus"};
  for (const Fact& fact : IdentityFacts()) properties.emplace_back(fact.property);
  for (const Fact& fact : StateFacts()) properties.emplace_back(fact.property);
  EXPECT_EQ(Texts(json["tables"][0]["columns"], "property"), properties);
}

TEST(ReportData, HasTheFindingsWithThePlacesOfTheirObjects) {
  HealthyMachine machine;
  EXPECT_EQ(ReportData(machine.Header(), machine.Result())["findings"], ordered_json::array());
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded");
  machine.runs.push_back(RunOf("arcconf", {"getconfig", "7", "al"}, Outcome::kTimedOut, "60 s passed"));
  const QueryResult result = machine.Result();
  const auto findings = ReportData(machine.Header(), result)["findings"];
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0]["severity"], "critical");
  EXPECT_EQ(findings[0]["name"], "logical drive 1 (Data) of controller 2");
  EXPECT_EQ(RawText(*result.instances.at(findings[0]["instance"]), "DeviceID"), "Zentraxis2LD1");
  EXPECT_EQ(findings[1]["class"], "tool run");
  EXPECT_FALSE(findings[1].contains("instance"));
}

TEST(ReportData, ListsUnreadLinesIfEveryClassWasQueried) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxLogicalDisk", "Size", "5 MB");
  repository.Publish("KVRSG_zxRawData", "Command", "tool", "RawResults", ::Texts({"Size : 5 MB", "New : new"}));
  const QueryResult result{1, repository.Instances(), {}};
  QueryHeader header;
  EXPECT_TRUE(ReportData(header, result)["unread"].is_null());
  for (const ClassDeclaration& each : PublishedClasses()) header.classes.emplace_back(each.name);
  const auto unread = ReportData(header, result)["unread"];
  ASSERT_EQ(unread.size(), 1U);
  EXPECT_EQ(unread[0]["instance"], 1);
  EXPECT_THAT(unread[0]["lines"], ElementsAre(1));
}

}  // namespace
