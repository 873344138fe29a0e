#include "host/hxahost/machine/health.h"

#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/result/property_values.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";

std::string Brief(const Finding& finding) {
  return std::string(SeverityWord(finding.severity)) + ": " + finding.identifier + ", " + finding.property + " \"" +
         finding.text + "\"";
}

std::vector<std::string> FindingsOf(const HealthyMachine& machine) {
  std::vector<std::string> findings;
  for (const Finding& finding : BuildMachine(machine.Header(), machine.Result()).findings)
    findings.push_back(Brief(finding));
  return findings;
}

HealthyMachine WithoutRunsOf(const std::string& tool) {
  HealthyMachine machine;
  std::erase_if(machine.runs, [&tool](const ToolRun& run) { return ToolName(run.path) == tool; });
  return machine;
}

HealthyMachine WithRun(const ToolRun& run) {
  HealthyMachine machine;
  machine.runs.push_back(run);
  return machine;
}

TEST(Health, FindsNothingOnAHealthyMachine) { EXPECT_THAT(FindingsOf(HealthyMachine()), IsEmpty()); }

TEST(Health, ContainsEveryFactAboutAFinding) {
  HealthyMachine machine;
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", " Degraded \r\n");
  const Findings findings = BuildMachine(machine.Header(), machine.Result()).findings;
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].severity, Severity::kCritical);
  EXPECT_EQ(findings[0].className, "KVRSG_zxLogicalDisk");
  EXPECT_EQ(findings[0].identifier, "Zentraxis2LD1");
  EXPECT_EQ(findings[0].name, "logical drive 1 (Data) of controller 2");
  EXPECT_EQ(findings[0].property, "LogicalDriveStatus");
  EXPECT_EQ(findings[0].text, "Degraded");
  EXPECT_EQ(TextOf(findings[0].meaning), "Replace the failed disk now: the array cannot tolerate another failure");
  ASSERT_TRUE(findings[0].instance.has_value());
  EXPECT_EQ(RawText(*machine.Result().instances.at(*findings[0].instance), "DeviceID"), "Zentraxis2LD1");
}

TEST(Health, ShowsTheWorstFirstAndKeepsTheOrderOfTheRulesWithinASeverity) {
  HealthyMachine machine;
  machine.SetOf("C1 CH1 I00:A", "State", "Sleeping");
  machine.SetOf("C1 CH1 I01:B", "PFA", "Yes");
  machine.SetOf("C2 CH0 I00:Controller: Device #0", "State", "Failed");
  machine.SetOf("Zentraxis2", "ControllerBatteryStatus", "Failed");
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded");
  EXPECT_THAT(FindingsOf(machine), ElementsAre("critical: Zentraxis2LD1, LogicalDriveStatus \"Degraded\"",
                                               "critical: C2 CH0 I00:Controller: Device #0, State \"Failed\"",
                                               "warning: C1 CH1 I01:B, PFA \"Yes\"",
                                               "warning: Zentraxis2, ControllerBatteryStatus \"Failed\"",
                                               "unknown: C1 CH1 I00:A, State \"Sleeping\""));
}

TEST(Health, RaisesNoFalseAlarm) {
  struct Case {
    const char* name;
    std::function<void(HealthyMachine&)> change;
  };
  const Case cases[] = {
      {"a rebuild of a disk in a drive that is whole",
       [](HealthyMachine& machine) { machine.SetOf("C1 CH1 I01:B", "State", "Rebuild (RBL)"); }},
      {"a controller that nothing is connected to",
       [](HealthyMachine& machine) {
         machine.Remove("KVRSG_zxLogicalDisk");
         machine.Remove("KVRSG_zxDiskGroup");
         machine.Remove("KVRSG_zxDiskDrive");
         machine.Remove("KVRSG_BadStripeData");
         machine.Remove("KVRSG_zxSCSIDeviceData");
       }                                                                                       },
      {"no controller at all, and tools that say so",
       [](HealthyMachine& machine) {
         machine.devices.clear();
         std::erase_if(machine.runs, [](const ToolRun& run) { return run.outcome != Outcome::kRefused; });
       }                                                                                       },
      {"a log of arcconf that is not there",
       [](HealthyMachine& machine) {
         machine.runs.push_back(RunOf("arcconf", {"getlogs", "1", "dead"}, Outcome::kCutOff, "cut"));
       }                                                                                       },
      {"a command that had nothing to say",
       [](HealthyMachine& machine) {
         machine.runs.push_back(RunOf("qcmdrun", {"getbst", "1", "device"}, Outcome::kEmpty, "nothing"));
       }                                                                                       },
      {"an answer that quotes a message of the log",
       [](HealthyMachine& machine) {
         machine.log.push_back({3, "HRCONFDATA-Getconfig 1 al:\nCollection aborted: \n"});
       }                                                                                       },
      {"a tape and a legacy controller, which have no state",
       [](HealthyMachine& machine) { machine.SetOf("C1 CH1 I05:D", "State", ""); }             },
  };
  for (const Case& each : cases) {
    HealthyMachine machine;
    each.change(machine);
    EXPECT_THAT(FindingsOf(machine), IsEmpty()) << each.name;
  }
}

TEST(Health, OfADeviceOfUnknownTypeIsUnknownWithoutItsState) {
  for (const char* const type : {"Solid State Disk", ""}) {
    HealthyMachine machine;
    machine.SetOf("C2 CH0 I00:Controller: Device #4", "DeviceType", type);
    const Findings findings = BuildMachine(machine.Header(), machine.Result()).findings;
    ASSERT_EQ(findings.size(), 1U) << type;
    EXPECT_EQ(findings.front().severity, Severity::kUnknown);
    EXPECT_EQ(findings.front().property, "State");
    machine.SetOf("C2 CH0 I00:Controller: Device #4", "State", "Online");
    EXPECT_THAT(FindingsOf(machine), IsEmpty()) << type;
  }
}

TEST(Health, FindsAControllerThatItsDrivesNameButThatIsNotThere) {
  HealthyMachine machine;
  std::erase_if(machine.devices, [](const HealthyMachine::Device& device) {
    return device.className == kController && std::string(device.properties[1].second) == "2";
  });
  machine.runs.clear();
  machine.runs.push_back(RunOf("qcmdrun", {"getconfig", "1", "al"}, Outcome::kOk));
  EXPECT_THAT(FindingsOf(machine), ElementsAre("critical: Zentraxis2, ControllerNum \"\""));
}

TEST(Health, ReportsNoMissingControllerIfNoneWasQueried) {
  HealthyMachine machine;
  machine.Remove(kController);
  QueryHeader header = machine.Header();
  header.classes = {"KVRSG_zxLogicalDisk", "KVRSG_zxDiskDrive"};
  EXPECT_TRUE(BuildMachine(header, machine.Result()).findings.empty());
}

TEST(Health, ReportsTheFailuresOfTheTools) {
  struct Case {
    ToolRun run;
    const char* finding;
  };
  const Case cases[] = {
      {RunOf("qcmdrun",   {"getconfig", "1", "al"}, Outcome::kNotStarted, "not here"),
       "unknown: qcmdrun, outcome \"not started: not here\""          },
      {RunOf("arcconf",   {"getlogs", "1", "uart"}, Outcome::kTimedOut,   "300 s"),
       "unknown: arcconf, outcome \"timed out: 300 s\""               },
      {RunOf("arcconf",   {"getconfig", "1", "al"}, Outcome::kCutOff,     "its last line is \"x\""),
       "unknown: arcconf, outcome \"cut off: its last line is \"x\"\""},
      {RunOf("hrconf_64", {"getconfig", "1", "al"}, Outcome::kEmpty,      "it wrote nothing"),
       "unknown: hrconf_64, outcome \"empty: it wrote nothing\""      },
      {RunOf("hrconf_64", {"getstatus", "1"},       Outcome::kFailed,     "its exit status is 9"),
       "unknown: hrconf_64, outcome \"failed: its exit status is 9\"" },
  };
  for (const Case& each : cases) EXPECT_THAT(FindingsOf(WithRun(each.run)), ElementsAre(each.finding));
}

TEST(Health, IsUnknownIfNoToolCanBeRun) {
  HealthyMachine machine;
  machine.devices.clear();
  machine.runs.clear();
  for (const char* const tool : {"qcmdrun", "hrconf_64", "arcconf"}) {
    machine.runs.push_back(RunOf(tool, {"getconfig", "1", "al"}, Outcome::kNotStarted, "not here"));
  }
  const Findings findings = BuildMachine(machine.Header(), machine.Result()).findings;
  EXPECT_EQ(findings.size(), 3U);
  EXPECT_EQ(WorstOf(findings), Severity::kUnknown);
}

TEST(Health, IsUnknownIfNoToolIsInstalled) {
  HealthyMachine machine;
  machine.devices.clear();
  machine.runs = {RunOf("qcmdrun", {"getconfig", "1", "al"}, Outcome::kNotInstalled, "no such file"),
                  RunOf("arcconf", {"getconfig", "1", "al"}, Outcome::kNotInstalled, "no such file")};
  EXPECT_THAT(FindingsOf(machine),
              ElementsAre("unknown: collection, controllers \"found no utility: not installed are qcmdrun, arcconf\""));
}

TEST(Health, ReportsAMissingUtilityOnlyIfItIsExpectedOrWasInstalled) {
  HealthyMachine machine = WithoutRunsOf("hrconf_64");
  machine.runs.push_back(RunOf("hrconf_64", {"getconfig", "1", "al"}, Outcome::kNotInstalled, "no such file"));
  EXPECT_THAT(FindingsOf(machine), IsEmpty());
  QueryHeader header = machine.Header();
  header.expectations.tools = {"hrconf_64"};
  EXPECT_EQ(BuildMachine(header, machine.Result()).findings.size(), 1U);
  machine.runs.push_back(RunOf("hrconf_64", {"getconfig", "1", "al"}, Outcome::kRefused, "none"));
  EXPECT_THAT(FindingsOf(machine), ElementsAre("unknown: hrconf_64, outcome \"not installed: no such file\""));
}

TEST(Health, MissesAnExpectedUtilityThatWasNotRun) {
  const HealthyMachine machine = WithoutRunsOf("hrconf_64");
  QueryHeader header = machine.Header();
  header.expectations.tools = {"hrconf_64"};
  const Findings findings = BuildMachine(header, machine.Result()).findings;
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(Brief(findings[0]), "unknown: hrconf_64, outcome \"not asked: it was not run\"");
}

TEST(Health, IsUnknownIfNoToolWasRun) {
  HealthyMachine machine;
  machine.devices.clear();
  machine.runs.clear();
  EXPECT_THAT(FindingsOf(machine), ElementsAre("unknown: collection, controllers \"no run\""));
}

TEST(Health, OfALaterQueryNeedsNoRun) {
  HealthyMachine machine;
  machine.runs.clear();
  QueryResult result = machine.Result();
  result.number = 2;
  EXPECT_TRUE(BuildMachine(machine.Header(), result).findings.empty());
}

TEST(Health, IsUnknownIfAControllerAnsweredThatIsNotPublished) {
  const HealthyMachine machine = WithRun(RunOf("arcconf", {"getconfig", "2", "al"}, Outcome::kOk));
  EXPECT_THAT(FindingsOf(machine),
              ElementsAre("unknown: collection, controllers \"3 controllers answered, 2 are known\""));
}

TEST(Health, FindsTheReasonForAnAbortInTheLog) {
  struct Case {
    const char* text;
    const char* severity;
  };
  const Case cases[] = {
      {"Collection aborted: past the end inside ZxPlugin",                                                   "unknown"},
      {"status data is junk: Quit status data collection",                                                   "unknown"},
      {"Bad Stripe data is junk: Quit BST data collection",                                                  "unknown"},
      {"GetControllers() Failed: out of memory",                                                             "unknown"},
      {"A Zentraxis C4, C5, C6/C6-e or B3 is present, but there is a driver and firmware mismatch. \t\tDo.", "warning"},
  };
  for (const Case& each : cases) {
    HealthyMachine machine;
    machine.log = {
        {3,   "Looking for QCMRUN controller"},
        {3,   each.text                      },
        {101, std::string("\n") + each.text  },
    };
    EXPECT_THAT(FindingsOf(machine), ElementsAre(std::string(each.severity) + ": log, text \"" + each.text + "\""));
  }
}

TEST(Health, AsksForLogicalDrivesBeforeTheirBadStripes) {
  const auto classes = HealthClasses();
  EXPECT_LT(std::ranges::find(classes, "KVRSG_zxLogicalDisk"), std::ranges::find(classes, "KVRSG_BadStripeData"));
}

}  // namespace
