#include "host/hxahost/views/monitoring/health_report.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/text/display_width.h"
#include "tests/support/healthy_machine.h"
#include "tests/support/same_lines.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;
using testing::Not;

std::string Written(const HealthyMachine& machine, std::string_view format) {
  const QueryHeader header = machine.Header();
  const QueryResult result = machine.Result();
  std::ostringstream out;
  WriterOf<HealthWriter>("health", format)(out, {header, result, BuildMachine(header, result), 1.25});
  return out.str();
}

HealthyMachine BrokenMachine() {
  HealthyMachine machine;
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded");
  machine.SetOf("C2 CH0 I01:Controller: Device #1", "State", "Failed");
  machine.SetOf("C1 CH1 I01:B", "PFA", "Yes");
  machine.SetOf("Zentraxis:1LD1", "NumBadStripes", "3");
  machine.SetOf("Zentraxis2", "ControllerStatus", "Puzzled");
  machine.runs.push_back(RunOf("hrconf_64", {"getconfig", "2", "al"}, Outcome::kTimedOut, "no answer for 300 s"));
  return machine;
}

// Hostile output of tools: quotes, backslashes, line ends, terminal commands, bytes that are not UTF-8.
HealthyMachine HostileMachine() {
  HealthyMachine machine;
  machine.SetOf("Zentraxis2LD1", "LogicalDriveName", "a\"b\\c\nd\x1b[2J\xe4");
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "<b>\"Odd\"\\\n\xe4\x1b]0;x\x07");
  return machine;
}

// Monitoring programs show only the first line.
TEST(HealthText, SumsUpInItsFirstLineAndHasEachIncidentWithItsAction) {
  EXPECT_TRUE(IsGolden("health.txt", Written(BrokenMachine(), "text")));
}

TEST(HealthText, HasEachFindingOnceBelowItsIncidentIfVerbose) {
  const HealthyMachine machine = BrokenMachine();
  const QueryHeader header = machine.Header();
  const QueryResult result = machine.Result();
  std::ostringstream out;
  WriteHealthText(out, {header, result, BuildMachine(header, result), 1.25, true});
  EXPECT_TRUE(IsGolden("health-verbose.txt", out.str()));
}

TEST(HealthText, ReportsThatNothingIsWrong) {
  EXPECT_EQ(Written(HealthyMachine(), "text"),
            "OK: nothing is wrong on HOST (2 controllers, 2 logical drives, 9 devices)\n");
}

TEST(HealthText, NamesTheUtilitiesThatReportedNoController) {
  HealthyMachine machine;
  machine.devices.clear();
  machine.runs = {RunOf("qcmdrun", {"getconfig", "1", "al"}, Outcome::kRefused),
                  RunOf("qcmdrun", {"getconfig", "1", "al"}, Outcome::kRefused),
                  RunOf("arcconf", {"getconfig", "1", "al"}, Outcome::kRefused)};
  EXPECT_EQ(Written(machine, "text"), "OK: no controller on HOST: qcmdrun, arcconf answered that there is none\n");
}

TEST(HealthText, CountsOneOfAKindInTheSingular) {
  HealthyMachine machine;
  std::erase_if(machine.devices, [](const HealthyMachine::Device& device) {
    return device.className != "KVRSG_zxSCSIProtocolController" || device.properties.size() > 6;
  });
  machine.runs = {RunOf("qcmdrun", {"getconfig", "1", "al"}, Outcome::kOk)};
  EXPECT_THAT(Written(machine, "text"), HasSubstr("(1 controller, 0 logical drives, 0 devices)"));
}

TEST(HealthText, EscapesTheTextsOfToolsForTheTerminal) {
  const std::string text = Written(HostileMachine(), "text");
  EXPECT_THAT(text, HasSubstr("\"a\"b\\c\\nd\\x1b[2J\xc3\xa4\" (RAID 5) is <b>"));
  EXPECT_EQ(text.find('\x1b'), text.npos);
}

TEST(HealthText, CutsALogEntryToItsBeginning) {
  HealthyMachine machine;
  machine.log = {
      {3, "Collection aborted: " + std::string(1000, 'x')}
  };
  EXPECT_LT(Written(machine, "text").size(), 500U);
}

TEST(HealthJson, HasTheAgreedForm) { EXPECT_TRUE(IsGolden("health.json", Written(BrokenMachine(), "json"))); }

TEST(HealthJson, HasAnEmptyListWithoutFaults) {
  const auto json = nlohmann::json::parse(Written(HealthyMachine(), "json"));
  EXPECT_EQ(json["status"], "ok");
  EXPECT_TRUE(json["findings"].is_array());
  EXPECT_TRUE(json["findings"].empty());
}

TEST(HealthJson, ContainsTheOutputOfAToolUnchangedAndReadsBadUtf8AsLatin1) {
  const auto json = nlohmann::json::parse(Written(HostileMachine(), "json"));
  EXPECT_EQ(json["findings"][0]["text"], "<b>\"Odd\"\\\n\xc3\xa4\x1b]0;x\x07");
}

TEST(HealthMetrics, HaveTheAgreedForm) { EXPECT_TRUE(IsGolden("health.prom", Written(BrokenMachine(), "prometheus"))); }

TEST(HealthMetrics, EscapeTheTextsOfTools) {
  const std::string text = Written(HostileMachine(), "prometheus");
  EXPECT_THAT(text, HasSubstr("name=\"a\\\"b\\\\c\\nd\\\\x1b[2J\xc3\xa4\""));
  EXPECT_EQ(text.find('\x1b'), text.npos);
}

// The names of all samples with their labels.
std::set<std::string> SamplesOf(const HealthyMachine& machine) {
  std::istringstream lines(Written(machine, "prometheus"));
  std::set<std::string> samples;
  for (std::string line; std::getline(lines, line);) {
    const std::string sample = line.starts_with('#') ? line : line.substr(0, line.rfind(' '));
    EXPECT_TRUE(samples.insert(sample).second) << sample << " comes twice";
  }
  return samples;
}

TEST(HealthMetrics, GiveEachSampleOnce) {
  HealthyMachine machine;
  const auto copies = machine.devices;
  machine.devices.insert(machine.devices.end(), copies.begin(), copies.end());
  SamplesOf(machine);
}

TEST(HealthMetrics, KeepTheirLabelsWhenStatesChange) {
  HealthyMachine degraded;
  degraded.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded");
  HealthyMachine rebuilding;
  rebuilding.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded, Rebuilding ( Rebuild : 38 % )");
  EXPECT_EQ(SamplesOf(degraded), SamplesOf(rebuilding));
}

TEST(HealthMetrics, TellApartTheIncidentsOfOneController) {
  HealthyMachine machine;
  machine.SetOf("Zentraxis2", "ControllerStatus", "Puzzled");
  machine.SetOf("Zentraxis2", "ControllerBatteryStatus", "Failed");
  machine.SetOf("Zentraxis2", "ControllerTemp", "90 C/ 194 F (Critical)");
  for (const char* const subject : {"Zentraxis2", "Zentraxis2 battery", "Zentraxis2 temperature"}) {
    EXPECT_TRUE(SamplesOf(machine).contains(std::string("zenx_incident{controller=\"2\",tool=\"arcconf\",subject=\"") +
                                            subject + "\"}"));
  }
}

TEST(HealthMetrics, LeaveOutATimeThatIsNone) {
  HealthyMachine machine;
  QueryHeader header = machine.Header();
  header.time = NKVRHXA20::TCIMDateTime(2026, 0, 5, 12, 30, 15, 0, 60);
  std::ostringstream out;
  WriteHealthMetrics(out, {header, machine.Result(), {}, 0});
  EXPECT_THAT(out.str(), Not(HasSubstr("timestamp")));
}

// The first line, as far as "|", and the figures after it.
std::pair<std::string, std::string> FirstLine(const HealthyMachine& machine) {
  std::istringstream lines(Written(machine, "nagios"));
  std::string line;
  std::getline(lines, line);
  const std::size_t bar = line.find(" | ");
  EXPECT_LE(DisplayWidth(line), 200U) << line;
  EXPECT_EQ(std::ranges::count(line, '|'), 1) << line;
  return {line.substr(0, bar), line.substr(bar + 3)};
}

TEST(HealthNagios, HasTheAgreedForm) { EXPECT_TRUE(IsGolden("health.nagios", Written(BrokenMachine(), "nagios"))); }

TEST(HealthNagios, ReportsThatNothingIsWrong) {
  const auto [text, figures] = FirstLine(HealthyMachine());
  EXPECT_EQ(text, "ZENX OK - no fault found: 2 controllers, 2 logical drives, 9 devices");
  EXPECT_EQ(figures, "critical=0 warning=0 unknown=0 controllers=2");
}

TEST(HealthNagios, EscapesBarsAndLineBreaksOfNamesAndCutsLongOnes) {
  HealthyMachine machine;
  machine.SetOf("Zentraxis2LD1", "LogicalDriveName", "a|b\nc" + std::string(300, 'x'));
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded");
  EXPECT_THAT(FirstLine(machine).first, HasSubstr("a\\x7cb\\nc"));
}

TEST(HealthNagios, NamesAFailureOfTheCommandOnStandardOutput) {
  std::ostringstream out;
  WriteNagiosFailure(out, "The plug-in | is missing:\ninstall it.");
  EXPECT_EQ(out.str(), "ZENX UNKNOWN - The plug-in \\x7c is missing:\\ninstall it.\n");
}

TEST(HealthRulesText, ShowsEachRule) {
  std::ostringstream out;
  WriteHealthRules(out);
  EXPECT_THAT(out.str(), HasSubstr("KVRSG_zxLogicalDisk, LogicalDriveStatus\n"));
  EXPECT_THAT(out.str(), HasSubstr("  critical \"offline\" (ofl), printed by every utility: Replace the failed disks"));
  EXPECT_THAT(
      out.str(),
      HasSubstr("  warning  \"rebuild\" (rbl) in a logical drive that is not guarded, printed by every utility"));
  EXPECT_THAT(out.str(),
              HasSubstr("  unknown  nothing of a hard disk, printed by every utility: the utility printed no state"));
}

}  // namespace
