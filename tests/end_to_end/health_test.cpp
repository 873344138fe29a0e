// "hxahost health" as people and monitoring programs run it: the real program with real processes, on the sample
// machine and on copies with one thing fixed or broken.

#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/text/utf8.h"
#include "tests/support/machine_copy.h"
#include "tests/support/same_lines.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

ProgramResult HealthOf(const MachineCopy& machine, std::vector<std::string> further = {}) {
  std::vector<std::string> arguments = {"health", "--directory", machine.Directory(), "--machine-name", "HOST"};
  arguments.insert(arguments.end(), further.begin(), further.end());
  return RunHxahost(arguments);
}

TEST(Health, IsFineIfAUtilityShowsAHealthyControllerOrAllReportNone) {
  const MachineCopy machine;
  machine.LeaveOnly("hrconf_64");
  ProgramResult result = HealthOf(machine);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "OK: nothing is wrong on HOST (1 controller, 2 logical drives, 6 devices)\n");
  machine.LeaveOnly("none");
  result = HealthOf(machine);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "OK: no controller on HOST: qcmdrun, hrconf_64, arcconf answered that there is none\n");
}

// One thing is wrong in the output of hrconf.
void ExpectHealth(const std::string& before, const std::string& after, int exitStatus, const std::string& says) {
  const MachineCopy machine;
  machine.LeaveOnly("hrconf_64");
  machine.Replace("hrconf_64/1/getconfig-al", before, after);
  const ProgramResult result = HealthOf(machine);
  EXPECT_EQ(result.exitStatus, exitStatus) << after;
  EXPECT_THAT(result.out, HasSubstr(says));
}

TEST(Health, IsAsBadAsTheOneThingThatIsWrong) {
  ExpectHealth("PFA                                : No", "PFA                                : Yes", 1,
               "WARNING: 1 warning on HOST");
  ExpectHealth("Status of logical drive                  : Okay", "Status of logical drive                  : Odd", 3,
               "UNKNOWN: 1 unknown on HOST");
  ExpectHealth("Controller Status                        : Okay", "Controller Status                        : Failed",
               2, "critical C1 has failed");
  ExpectHealth("Command completed successfully.", "", 3, "unknown  hrconf_64 cut off");
}

TEST(Health, ReportsAMissingUtilityAsInformationOrAsUnknownIfItIsExpectedOrNoneIsInstalled) {
  const MachineCopy machine;
  machine.LeaveOnly("hrconf_64");
  machine.RemoveTool("arcconf");
  ProgramResult result = HealthOf(machine);
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_THAT(result.out, AllOf(StartsWith("OK: nothing is wrong on HOST (1 controller"),
                                HasSubstr("\ninfo     arcconf is not installed\n")));
  result = HealthOf(machine, {"--expect", "qcmdrun,arcconf"});
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, AllOf(HasSubstr("UNKNOWN: 1 unknown on HOST (1 controller"),
                                HasSubstr("unknown  arcconf not installed: \"zenx//arcconf.exe\" cannot be started")));
  machine.RemoveTool("qcmdrun");
  machine.RemoveTool("hrconf_64");
  result = HealthOf(machine);
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, AllOf(StartsWith("UNKNOWN: 1 unknown on HOST (0 controllers, 0 logical drives, 0 devices)\n"),
                                HasSubstr("not installed are qcmdrun, hrconf_64, arcconf")));
}

TEST(Health, IsUnknownIfAnInstalledUtilityCannotBeRun) {
  const MachineCopy machine;
  machine.LeaveOnly("hrconf_64");
  machine.RemoveTool("arcconf");
  machine.SetTool("arcconf", "\x01no program");
  const ProgramResult result = HealthOf(machine);
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, HasSubstr("unknown  arcconf not started: \"zenx//arcconf.exe\" cannot be started: "));
}

TEST(Health, ReplaysAUtilityThatIsNotInstalledAsMissing) {
  const MachineCopy machine;
  machine.LeaveOnly("hrconf_64");
  machine.RemoveTool("arcconf");
  const TemporaryFolder folder;
  const std::string bundle = Utf8FromPath(folder.Path() / "machine.bundle");
  ASSERT_EQ(HealthOf(machine, {"--record", bundle}).exitStatus, 0);
  EXPECT_EQ(RunHxahost({"health", "--replay", bundle}).exitStatus, 0);
  EXPECT_EQ(RunHxahost({"health", "--replay", bundle, "--expect", "arcconf"}).exitStatus, 3);
}

TEST(Health, ShowsAUtilityThatIsNotInstalledInEveryForm) {
  const MachineCopy machine;
  machine.LeaveOnly("hrconf_64");
  machine.RemoveTool("arcconf");
  const auto shows = [&](std::vector<std::string> arguments, const std::string& text) {
    arguments.insert(arguments.end(), {"--directory", machine.Directory()});
    EXPECT_THAT(RunHxahost(arguments).out, HasSubstr(text)) << arguments[0];
  };
  shows({"status"}, "info     arcconf is not installed\n");
  shows({"health", "--format", "nagios"}, "\ninfo: arcconf is not installed");
  shows({"health", "--format", "prometheus"}, "zenx_incident{subject=\"arcconf\"} 0\n");
  shows({"health", "--format", "json"}, "\"isInstalled\": false");
  shows({"query", "--format", "html"}, "<h3>arcconf is not installed</h3>");
  shows({"query"}, "info     arcconf is not installed\n");
}

TEST(Health, ComparesWithABaselineThatWasSavedBefore) {
  const MachineCopy machine;
  const TemporaryFolder folder;
  const std::string baseline = Utf8FromPath(folder.Path() / "baseline.json");
  EXPECT_EQ(HealthOf(machine, {"--save-baseline", baseline}).err, "");
  const std::string same = HealthOf(machine, {"--baseline", baseline}).out;
  EXPECT_THAT(same, AllOf(Not(HasSubstr("is missing")), Not(HasSubstr("is new")), Not(HasSubstr("was moved"))));
  machine.RemoveControllers("arcconf");
  machine.RemoveController("qcmdrun", "2");
  const ProgramResult result =
      HealthOf(machine, {"--baseline", baseline, "--expect-controllers", "5", "--expect-disks", "30"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_THAT(result.out,
              AllOf(HasSubstr("critical C2 with "), HasSubstr("critical C4 with "), HasSubstr("critical C5 with "),
                    HasSubstr("critical 2 of 5 controllers are there"), HasSubstr(" of 30 disks are there")));
}

TEST(Health, SavesNoBaselineIfAUtilityDidNotAnswer) {
  const MachineCopy machine;
  machine.SetAnswer("hrconf_64/other", "Something new\n");
  const TemporaryFolder folder;
  const fs::path file = folder.Write("baseline.json", "old");
  const ProgramResult result = HealthOf(machine, {"--save-baseline", Utf8FromPath(file)});
  EXPECT_THAT(result.err, HasSubstr("nothing was saved"));
  EXPECT_EQ(FileText(file), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(Health, ReportsItsOwnFailureToNagiosOnStandardOutput) {
  const ProgramResult result = HealthOf(MachineCopy(), {"--format", "nagios", "--plugin", "missing.pi"});
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, AllOf(StartsWith("ZENX UNKNOWN - "), HasSubstr("missing.pi is missing")));
  EXPECT_THAT(result.err, HasSubstr("missing.pi is missing"));
}

TEST(Health, IsWrittenToAFileWholeAndAtOnce) {
  const MachineCopy machine;
  const TemporaryFolder folder;
  const fs::path file = folder.Write("zenx.prom", "old");
  const ProgramResult result = HealthOf(machine, {"--format", "prometheus", "--output", Utf8FromPath(file)});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(FileText(file), StartsWith("# HELP zenx_health_status "));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(Health, IsTheSameOnBothSystems) {
  const ProgramResult result =
      HealthOf(MachineCopy(), {"--format", "json", "--local-time", "20261121093000.000000+060"});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_EQ(result.err, "");
  EXPECT_TRUE(IsGolden("sample-machine-health.json", result.out));
}

TEST(Health, ShowsItsRulesWithoutRunningATool) {
  const ProgramResult result = RunHxahost({"health", "--rules", "--directory", "."});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_THAT(result.out, HasSubstr("KVRSG_zxDiskDrive, State\n"));
}

}  // namespace
