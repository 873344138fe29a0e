// The whole sample machine, every class, queried twice by the real program with real processes: held against
// tests/golden/sample-machine.json. To renew that file, run this test natively with ZENX_RENEW_GOLDEN=1 in the
// environment, and read the difference line by line before it is committed.

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "host/hxacore/schema.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/raid_log_setting.h"

namespace {

using Json = nlohmann::ordered_json;

// Relative to the sample machine's folder, as the tools' own paths are.
constexpr const char* kRaidLogFolder = "raid-manager\\";

// Asked once, for all tests.
const Json& QueryTwice() {
  static const Json result = [] {
    const RaidLogSetting setting(kRaidLogFolder);
    return QuerySampleMachine(
        {"--machine-name", "SAMPLE", "--local-time", "20261121093000.000000+060", "--repeat", "2"});
  }();
  return result;
}

std::string Text(const Json& json) { return json.dump(1) + "\n"; }

// Where two texts part, for the message of a failure.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
  const auto [there, here] = std::ranges::mismatch(expected, actual);
  const auto line = 1 + std::count(expected.begin(), there, '\n');
  return "line " + std::to_string(line) + ": expected ..." +
         expected.substr(static_cast<std::size_t>(there - expected.begin()), 200) + "\nbut got ..." +
         actual.substr(static_cast<std::size_t>(here - actual.begin()), 200);
}

TEST(SampleMachine, PublishesWhatItHasAlwaysPublishedOnBothSystems) {
  const std::filesystem::path golden = std::filesystem::path(ZENX_TEST_DATA) / "golden" / "sample-machine.json";
  const std::string actual = Text(QueryTwice());
  if (std::getenv("ZENX_RENEW_GOLDEN") != nullptr) WriteFileText(golden, actual);
  const std::string expected = FileText(golden);
  EXPECT_TRUE(expected == actual) << FirstDifference(expected, actual);
}

TEST(SampleMachine, PublishesEachClassThatPublishesAtAll) {
  const std::set<std::string> empty = {"KVRSG_DiskGroup", "KVRSG_zxDriveInDiskGroup", "KVRSG_zxExtenInDiskGroup"};
  const Json& result = QueryTwice();
  std::map<std::string, int> counts;
  for (const Json& instance : result["queries"][0]["instances"]) ++counts[instance["class"]];
  for (const auto& declaration : NKVRHXA20::PublishedClasses()) {
    const std::string name(declaration.name);
    EXPECT_EQ(counts[name] == 0, empty.contains(name)) << name << ": " << counts[name] << " instances";
  }
}

TEST(SampleMachine, PublishesTheSameOnTheSecondQueryWithoutRunningATool) {
  const Json& queries = QueryTwice()["queries"];
  ASSERT_EQ(queries.size(), 2U);
  Json withoutEvents = Json::array();
  for (const Json& instance : queries[0]["instances"]) {
    // The RAID manager's log has been read to its end by the first query.
    if (instance["class"] != "KVRSG_LogRecord_RAIDMgrEvent") withoutEvents.push_back(instance);
  }
  EXPECT_EQ(queries[1]["instances"], withoutEvents);
  for (const Json& entry : queries[1]["log"]) {
    EXPECT_EQ(entry["text"].get<std::string>().find("Spawnprocess"), std::string::npos) << entry;
  }
}

TEST(SampleMachine, NumbersLegacyThenHrconfThenArcconfControllers) {
  const Json& result = QueryTwice();
  std::vector<std::string> numbers;
  for (const Json& instance : result["queries"][0]["instances"]) {
    if (instance["class"] == "KVRSG_zxSCSIProtocolController") {
      numbers.push_back(instance["properties"]["ControllerNum"]);
    }
  }
  // Two legacy controllers under 1 and 3, then hrconf's 1 behind two, then arcconf's 1 and 2 behind three.
  EXPECT_EQ(numbers, (std::vector<std::string>{"1", "3", "3", "4", "5"}));
}

}  // namespace
