// The program's list of the runs of the tools: for the sample machine, and for a copy in which some fail.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/support/contains_pattern.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/machine_copy.h"

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kSeconds = "[0-9]+[.][0-9] s\n";

Json RunsOf(const std::string& directory) {
  const ProgramResult result = RunHxahost({"query", "--format", "json", "--runs", "--directory", directory});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  return Json::parse(result.out)["queries"][0]["runs"];
}

// How often each tool had each outcome.
std::map<std::string, int> OutcomesOf(const Json& runs) {
  std::map<std::string, int> outcomes;
  for (const Json& run : runs) ++outcomes[std::string(run["command"]) + " " + std::string(run["outcome"])];
  return outcomes;
}

TEST(Runs, AreAllInTheJsonWithTheirExactCommands) {
  const Json runs = RunsOf(hxahost::Utf8FromPath(SampleMachine()));
  EXPECT_EQ(OutcomesOf(runs), (std::map<std::string, int>{
                                  {"zenx//qcmdrun.exe ok",        34},
                                  {"zenx//qcmdrun.exe refused",   12},
                                  {"zenx//hrconf_64.exe ok",      6 },
                                  {"zenx//hrconf_64.exe refused", 2 },
                                  {"zenx//arcconf.exe ok",        14},
                                  {"zenx//arcconf.exe refused",   12}
  }));
  const Json& first = runs[0];
  EXPECT_EQ(first["command"], "zenx//qcmdrun.exe");
  EXPECT_EQ(first["arguments"], Json({"getconfig", "1", "al"}));
  EXPECT_EQ(first["exitStatus"], 0);
  EXPECT_EQ(first["bytes"], 8527 + 175);  // its lines end in carriage return and line feed
  EXPECT_EQ(first["failure"], "");
  EXPECT_GT(first["seconds"], 0);
  EXPECT_EQ(runs.back()["exitStatus"], 1);
  EXPECT_EQ(runs.back()["failure"], "Invalid controller number.");
}

TEST(Runs, AreSummedUpByToolAtTheEndOfTheTables) {
  const ProgramResult result = RunHxahost({"query", "--replay", RecordedSampleMachine()});
  const std::string seconds = kSeconds;
  EXPECT_THAT(result.out,
              ContainsPattern("  qcmdrun: 46 runs, 2 controllers [(]1, 2[)], numbers 3-8 refused, " + seconds +
                              "  hrconf_64: 8 runs, 1 controller [(]1[)], number 2 refused, " + seconds +
                              "  arcconf: 26 runs, 2 controllers [(]1, 2[)], numbers 3-8 refused, " + seconds));
}

TEST(Runs, TellAMissingToolACutAnswerAndAnEmptyAnswerApart) {
  const MachineCopy machine;
  machine.RemoveTool("qcmdrun");
  const std::string answer = machine.Answer("arcconf/1/getconfig-al");
  machine.SetAnswer("arcconf/1/getconfig-al", answer.substr(0, answer.rfind("NV73")));
  machine.SetAnswer("arcconf/2/getlogs-dead", "");
  machine.SetAnswer("hrconf_64/other", "Something new\n");
  const std::string log = machine.Directory() + "/log.txt";
  const ProgramResult result = RunHxahost({"query", "--directory", machine.Directory(), "--log", log});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_THAT(result.out, HasSubstr("  qcmdrun: 80 runs, no controller answered, 80 not installed, "));
  EXPECT_THAT(result.out, HasSubstr("    not installed (80 runs, the first getconfig 1 al):"));
  EXPECT_THAT(result.out, HasSubstr("  Tools belong into the folder zenx of "));
  EXPECT_THAT(result.out, HasSubstr("  arcconf: 26 runs, 1 controller (2), numbers 3-8 refused, 3 cut off, 1 empty, "));
  EXPECT_THAT(result.out, HasSubstr("    cut off (3 runs, the first getconfig 1 al):\n      its last line is "));
  EXPECT_THAT(result.out, HasSubstr("    empty (getlogs 2 dead): it wrote nothing\n"));
  EXPECT_THAT(result.out,
              HasSubstr("    failed (35 runs, the first getconfig 2 al): printed no valid report: Something new\n"));
}

TEST(Runs, ReportNoControllerOnlyIfEachToolDoes) {
  const MachineCopy machine;
  for (const char* const tool : {"qcmdrun", "hrconf_64", "arcconf"}) machine.RemoveControllers(tool);
  const ProgramResult result = RunHxahost({"query", "--directory", machine.Directory()});
  EXPECT_THAT(result.out, HasSubstr("Nothing was found"));
  EXPECT_THAT(result.out, HasSubstr("  qcmdrun: 16 runs, no controller found, numbers 1-8 refused, "));
  EXPECT_THAT(result.out, HasSubstr("  hrconf_64: 2 runs, no controller found, number 1 refused, "));
  EXPECT_THAT(result.out, HasSubstr("  arcconf: 16 runs, no controller found, numbers 1-8 refused, "));
  EXPECT_THAT(result.out, Not(HasSubstr("not started")));
}

}  // namespace
