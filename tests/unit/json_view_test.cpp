#include "host/hxahost/views/json/json_view.h"

#include <gtest/gtest.h>

#include <sstream>

#include <nlohmann/json.hpp>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using namespace std::string_literals;

std::string Json(const QueryHeader& header, const std::vector<QueryResult>& results) {
  std::ostringstream out;
  BeginJson(out, header);
  for (const QueryResult& result : results) WriteQueryJson(out, header, result);
  EndJson(out, header);
  return out.str();
}

nlohmann::ordered_json Properties(const FilledRepository& repository) {
  const auto json = nlohmann::ordered_json::parse(Json(QueryHeader(), {
                                                                          QueryResult{1, repository.Instances(), {}}
  }));
  return json["queries"][0]["instances"].back()["properties"];
}

TEST(JsonView, WritesEveryKindOfValueInTheOrderInWhichItWasSet) {
  FilledRepository repository;
  const TCIMReference soft =
      repository.Publish("KVRSG_LogRecord_SoftEvent", "RecordID", "1", "ControllerNum", "1", "MessageTimestamp",
                         TCIMDateTime(2026, 3, 5, 12, 30, 15, 250000, -60), "HexSoftEvent",
                         TCIMValue(kCIMUInt32, 0, {TCIMValue(0xffffffffU), TCIMValue(7U)}));
  repository.Publish("KVRSG_zxFirmwareVersion", "Name", "Zentraxis1 Firmware", "SoftwareElementState",
                     static_cast<unsigned short>(3), "Version", "");
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({"a \"quoted\" line", "b\\"}), "Command",
                     "zenx//qcmdrun.exe getconfig 1 al");
  const QueryHeader header{"MACHINE", "", TCIMDateTime("20260305123015.250000-060"), {}, 1};
  const QueryResult result{
      1, repository.Instances(), {{3, "one"}, {100, "two\n"}}
  };
  EXPECT_EQ(Json(header, {result}), R"({
  "format": 1,
  "machine": "MACHINE",
  "time": "20260305123015.250000-060",
  "queries": [
    {
      "instances": [
        {
          "class": "KVRSG_LogRecord_SoftEvent",
          "path": "KVRSG_LogRecord_SoftEvent.MessageTimestamp=\"20260305123015.250000-060\",RecordID=\"1\",)"
                                    R"(SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"",
          "properties": {
            "RecordID": "1",
            "ControllerNum": "1",
            "MessageTimestamp": "20260305123015.250000-060",
            "HexSoftEvent": [
              4294967295,
              7
            ]
          }
        },
        {
          "class": "KVRSG_zxFirmwareVersion",
          "path": "KVRSG_zxFirmwareVersion.Name=\"Zentraxis1 Firmware\",SoftwareElementState=3,)"
                                    R"(SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\",Version=\"\"",
          "properties": {
            "Name": "Zentraxis1 Firmware",
            "SoftwareElementState": 3,
            "Version": ""
          }
        },
        {
          "class": "KVRSG_zxRawData",
          "path": "KVRSG_zxRawData.Command=\"zenx//qcmdrun.exe getconfig 1 al\",)"
                                    R"(SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"",
          "properties": {
            "RawResults": [
              "a \"quoted\" line",
              "b\\"
            ],
            "Command": "zenx//qcmdrun.exe getconfig 1 al"
          }
        }
      ],
      "log": [
        {
          "level": 3,
          "text": "one"
        },
        {
          "level": 100,
          "text": "two\n"
        }
      ]
    }
  ]
}
)");
}

TEST(JsonView, KeepsTheQueriesApart) {
  EXPECT_EQ(Json(
                {
                    "M", "", {},
                      { },
                      2
  },
                {QueryResult{1, {}, {}}, QueryResult{2, {}, {}}}),
            R"({
  "format": 1,
  "machine": "M",
  "time": "00000000000000.000000+000",
  "queries": [
    {
      "instances": [],
      "log": []
    },
    {
      "instances": [],
      "log": []
    }
  ]
}
)");
}

TEST(JsonView, KeepsNamesAsTheyWereSet) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskDrive", "CreationClassname", "KVRSG_zxDiskDrive");
  EXPECT_EQ(Properties(repository).dump(), R"({"CreationClassname":"KVRSG_zxDiskDrive"})");
}

TEST(JsonView, ShowsAReferenceAsAnObjectPath) {
  FilledRepository repository;
  const TCIMReference group = repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "a\"b\\c");
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", group);
  EXPECT_EQ(Properties(repository)["Dependent"], R"(KVRSG_zxDiskGroup.CollectionID="a\"b\\c",)"
                                                 R"(SystemCreationClassName="KVRSG_ComputerSystem",SystemName="M")");
}

TEST(JsonView, ReadsEachKeyOfAPathByItselfAsTheProperty) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxFirmwareVersion", "Name", "K\xc3\xa4se", "Version", "K\xe4se");
  const auto json = nlohmann::json::parse(Json(
      {
  },
      {QueryResult{1, repository.Instances(), {}}}));
  EXPECT_EQ(json["queries"][0]["instances"][0]["path"],
            "KVRSG_zxFirmwareVersion.Name=\"K\xc3\xa4se\",SystemCreationClassName=\"KVRSG_ComputerSystem\","
            "SystemName=\"M\",Version=\"K\xc3\xa4se\"");
}

TEST(JsonView, KeepsEveryByte) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", " K\xe4se\r\n", "RawResults", Texts({"\x1b\t \0\xff"s}));
  const auto properties = Properties(repository);
  EXPECT_EQ(properties["Command"], " K\xc3\xa4se\r\n");
  EXPECT_EQ(properties["RawResults"][0].get<std::string>(), "\x1b\t \0\xc3\xbf"s);
}

TEST(JsonView, KeepsTheBytesOfMachineAndLog) {
  QueryHeader header;
  header.machine = "K\xe4se\n";
  QueryResult result;
  result.log = {
      {0, "\xe4\x00"s}
  };
  const auto json = nlohmann::json::parse(Json(header, {result}));
  EXPECT_EQ(json["machine"], "K\xc3\xa4se\n");
  EXPECT_EQ(json["queries"][0]["log"][0]["text"].get<std::string>(), "\xc3\xa4\0"s);
}

TEST(JsonView, ShowsAnEmptyArrayAndAnEmptyValue) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({}));
  EXPECT_EQ(Properties(repository).dump(), R"({"RawResults":[]})");
}

TEST(JsonLines, AreOneInstanceEachWithMachineAndTime) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "one", "RawResults", Texts({"a\nb"}));
  repository.Publish("KVRSG_zxRawData", "Command", "two");
  QueryHeader header;
  header.machine = "MACHINE";
  header.time = TCIMDateTime("20260305123015.250000-060");
  std::ostringstream out;
  BeginJsonLines(out, header);
  WriteQueryJsonLines(out, header, {1, repository.Instances(), {}});
  EndJsonLines(out, header);
  const std::string begin = R"({"machine":"MACHINE","time":"20260305123015.250000-060","class":"KVRSG_zxRawData",)";
  const std::string end = R"(,SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"","properties":)";
  EXPECT_EQ(out.str(), begin + R"("path":"KVRSG_zxRawData.Command=\"one\")" + end +
                           R"({"Command":"one","RawResults":["a\nb"]}})" + "\n" + begin +
                           R"("path":"KVRSG_zxRawData.Command=\"two\")" + end + R"({"Command":"two"}})" + "\n");
}

}  // namespace
