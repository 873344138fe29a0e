#include "host/hxahost/diff/finding_diff.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

ResultInstance Disk(const std::string& path, const std::string& serial, const std::string& state) {
  return {
      "KVRSG_zxDiskDrive",
      path,
      {{"DeviceID", path},
        {"ControllerNum", "1"},
        {"DeviceType", "Hard drive"},
        {"DeviceSerialNum", serial},
        {"State", state}}
  };
}

ResultInstance Controller(const std::string& number, const std::string& status) {
  return {
      "KVRSG_zxSCSIProtocolController",
      "c" + number,
      {{"DeviceID", "Zentraxis" + number}, {"ControllerNum", number}, {"ControllerStatus", status}}
  };
}

JsonResult Machine(std::vector<ResultInstance> instances) { return {"M", std::move(instances)}; }

ToolRun Failed(const std::string& reason) {
  ToolRun run;
  run.path = "zenx//arcconf.exe";
  run.arguments = {"getconfig", "1", "al"};
  run.outcome = Outcome::kFailed;
  run.failure = reason;
  return run;
}

std::string Brief(const std::optional<Finding>& finding) {
  return finding ? std::string(SeverityWord(finding->severity)) + " " + finding->identifier + " " + finding->text : "-";
}

// "old => new" for each change.
std::vector<std::string> Changes(const JsonResult& before, const JsonResult& after) {
  std::vector<std::string> texts;
  for (const FindingChange& change : CompareFindings(before, after, MatchInstances(before, after))) {
    texts.push_back(Brief(change.before) + " => " + Brief(change.after));
  }
  return texts;
}

TEST(FindingDiff, LeavesOutUnchangedFindings) {
  const JsonResult machine = Machine({Controller("1", "Optimal"), Disk("d", "7", "Failed")});
  EXPECT_THAT(Changes(machine, machine), IsEmpty());
}

TEST(FindingDiff, ShowsNewChangedAndDisappearedFindings) {
  const auto machine = [](const char* first, const char* second, const char* third) {
    return Machine({Disk("a", "1", first), Disk("b", "2", second), Disk("c", "3", third)});
  };
  EXPECT_THAT(Changes(machine("Online", "Rebuilt sometimes", "Failed"), machine("Failed", "Failed", "Online")),
              ElementsAre("- => critical a Failed", "unknown b Rebuilt sometimes => critical b Failed",
                          "critical c Failed => -"));
}

TEST(FindingDiff, PutsTheWorstFirstAndDisappearedFindingsLast) {
  const JsonResult before = Machine(
      {Disk("a", "1", "Strange"), Disk("b", "2", "Failed"), Disk("c", "3", "Online"), Disk("d", "4", "Online")});
  const JsonResult after = Machine(
      {Disk("a", "1", "Online"), Disk("b", "2", "Online"), Disk("c", "3", "Strange"), Disk("d", "4", "Failed")});
  EXPECT_THAT(Changes(before, after), ElementsAre("- => critical d Failed", "- => unknown c Strange",
                                                  "critical b Failed => -", "unknown a Strange => -"));
}

TEST(FindingDiff, FollowsADiskToItsNewPlace) {
  EXPECT_THAT(Changes(Machine({Disk("old", "7", "Failed")}), Machine({Disk("new", "7", "Failed")})), IsEmpty());
}

TEST(FindingDiff, DistinguishesTwoDisksWithOneIdentifier) {
  EXPECT_THAT(Changes(Machine({Disk("d", "1", "Failed"), Disk("d", "2", "Online")}),
                      Machine({Disk("d", "1", "Online"), Disk("d", "2", "Failed")})),
              ElementsAre("- => critical d Failed", "critical d Failed => -"));
}

TEST(FindingDiff, ReportsAMissingControllerWhoseDisksAreThere) {
  const std::vector<std::string> changes =
      Changes(Machine({Controller("1", "Optimal"), Disk("d", "7", "Online")}), Machine({Disk("d", "7", "Online")}));
  EXPECT_THAT(changes, ElementsAre(testing::StartsWith("- => critical Zentraxis1")));
}

TEST(FindingDiff, ReportsNoMissingControllersIfTheyWereNotQueried) {
  EXPECT_THAT(Changes(Machine({Disk("d", "7", "Online")}), Machine({Disk("d", "7", "Online")})), IsEmpty());
}

TEST(FindingDiff, ComparesTheRunsOfTheToolsIfBothResultsHaveThem) {
  JsonResult before = Machine({});
  JsonResult after = Machine({});
  after.runs = ToolRunList{Failed("exit status 5")};
  EXPECT_THAT(Changes(before, after), IsEmpty()) << "the old result was written without runs";
  before.runs = ToolRunList{Failed("exit status 5")};
  EXPECT_THAT(Changes(before, after), IsEmpty());
  before.runs = ToolRunList{Failed("exit status 4")};
  EXPECT_EQ(Changes(before, after).size(), 2U);
}

TEST(FindingDiff, ReadsTheLogOfBoth) {
  const JsonResult before = Machine({});
  JsonResult after = Machine({});
  after.log.push_back({3, "Collection aborted: cut off inside ZxPlugin"});
  EXPECT_EQ(Changes(before, after).size(), 1U);
}

}  // namespace
