#include "host/hxahost/machine/baseline.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/result/json_result.h"
#include "host/hxahost/views/json/json_view.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";
constexpr const char* kErrors = "Zentraxis:1C1S0";
constexpr const char* kFirstDisk = "C1 CH1 I00:A";

// A healthy machine whose controllers and disks have serial numbers, as most have.
HealthyMachine Numbered() {
  HealthyMachine machine;
  int number = 0;
  for (HealthyMachine::Device& device : machine.devices) {
    if (device.className != kController && device.className != kDiskDrive) continue;
    const char* const property = device.className == kController ? "SerialNum" : "DeviceSerialNum";
    device.properties.emplace_back(property, "SN" + std::to_string(++number));
  }
  return machine;
}

void RemoveObject(HealthyMachine& machine, const std::string& identifier) {
  const auto isIt = [&](const HealthyMachine::Device& device) {
    return std::string(device.properties.front().second) == identifier;
  };
  ASSERT_EQ(std::erase_if(machine.devices, isIt), 1U) << identifier;
}

// Sets a property of an object, or adds it.
void Put(HealthyMachine& machine, const std::string& identifier, const std::string& property,
         const std::string& value) {
  for (HealthyMachine::Device& device : machine.devices) {
    if (std::string(device.properties.front().second) != identifier) continue;
    std::erase_if(device.properties, [&](const auto& each) { return each.first == property; });
    device.properties.emplace_back(property, value);
  }
}

void RemoveControllerTwo(HealthyMachine& machine) {
  std::erase_if(machine.devices, [](const HealthyMachine::Device& device) {
    return std::string(device.properties.front().second).find('2') != std::string::npos &&
           std::string(device.properties.front().second).find("C1") == std::string::npos;
  });
  machine.runs = {RunOf("qcmdrun", {"getconfig", "1", "al"}, Outcome::kOk)};
}

std::shared_ptr<const JsonResult> ResultOf(const HealthyMachine& machine, const std::string& time) {
  std::ostringstream json;
  QueryHeader header = machine.Header();
  header.time = NKVRHXA20::TCIMDateTime(time);
  BeginJson(json, header);
  WriteQueryJson(json, header, machine.Result());
  EndJson(json, header);
  return std::make_shared<JsonResult>(ParseJsonResult(json.str(), "before"));
}

Machine Compare(const HealthyMachine& before, const HealthyMachine& now) {
  QueryHeader header = now.Header();
  header.time = NKVRHXA20::TCIMDateTime("20261121093000.000000+060");
  header.expectations.baseline = ResultOf(before, "20261119093000.000000+060");
  return BuildMachine(header, now.Result());
}

// "critical: C1 disk at channel 1, ID 0 is missing"
std::vector<std::string> HeadlinesOf(const Machine& machine) {
  std::vector<std::string> headlines;
  for (const Incident& incident : machine.incidents) {
    headlines.push_back(std::string(IncidentWord(incident)) + ": " + incident.headline);
  }
  return headlines;
}

TEST(Baseline, FindsNothingWithoutAChange) {
  EXPECT_THAT(HeadlinesOf(Compare(Numbered(), Numbered())), IsEmpty());
  EXPECT_THAT(HeadlinesOf(Compare(HealthyMachine(), HealthyMachine())), IsEmpty()) << "also without serial numbers";
}

TEST(Baseline, MissesADiskWithItsLocationAndSerialNumber) {
  HealthyMachine now = Numbered();
  RemoveObject(now, kFirstDisk);
  const Machine machine = Compare(Numbered(), now);
  ASSERT_THAT(HeadlinesOf(machine), ElementsAre("critical: C1 disk at channel 1, ID 0 is missing"));
  const Incident& incident = machine.incidents.front();
  EXPECT_EQ(incident.location, "channel 1, ID 0");
  EXPECT_EQ(incident.subject, kFirstDisk);
  EXPECT_THAT(incident.action, AllOf(HasSubstr("CHECK whether it was pulled: "), HasSubstr("S/N SN2")));
  ASSERT_EQ(incident.disks.size(), 1U);
  EXPECT_EQ(DeviceOf(machine, incident.disks.front()).serialNumber, "SN2");
  ASSERT_EQ(machine.findings.size(), 1U);
  EXPECT_EQ(machine.findings.front().severity, Severity::kCritical);
}

TEST(Baseline, CallsANewDiskInformation) {
  HealthyMachine before = Numbered();
  RemoveObject(before, kFirstDisk);
  const Machine machine = Compare(before, Numbered());
  EXPECT_THAT(HeadlinesOf(machine), ElementsAre("info: C1 disk at channel 1, ID 0 is new"));
  EXPECT_EQ(WorstOf(machine.findings), Severity::kFine);
}

TEST(Baseline, RecognisesADiskThatWasMovedByItsSerialNumber) {
  HealthyMachine now = Numbered();
  Put(now, kFirstDisk, "ScsiId", "7");
  const Machine machine = Compare(Numbered(), now);
  EXPECT_THAT(HeadlinesOf(machine),
              ElementsAre("info: C1 disk at channel 1, ID 7 was moved: it was at C1 channel 1, ID 0"));
}

TEST(Baseline, SeesThatADiskWasReplaced) {
  HealthyMachine now = Numbered();
  Put(now, kFirstDisk, "DeviceSerialNum", "OTHER");
  EXPECT_THAT(HeadlinesOf(Compare(Numbered(), now)), ElementsAre("critical: C1 disk at channel 1, ID 0 is missing",
                                                                 "info: C1 disk at channel 1, ID 0 is new"));
}

TEST(Baseline, MissesALogicalDrive) {
  HealthyMachine now = Numbered();
  RemoveObject(now, "Zentraxis1LD1");
  RemoveObject(now, "Zentraxis:1LD1");
  EXPECT_THAT(HeadlinesOf(Compare(Numbered(), now)), ElementsAre("critical: C1 logical drive 1 (RAID 1) is missing"));
  EXPECT_THAT(HeadlinesOf(Compare(now, Numbered())), ElementsAre("info: C1 logical drive 1 (RAID 1) is new"));
}

TEST(Baseline, ReportsAMissingControllerWithItsObjectsOnce) {
  HealthyMachine now = Numbered();
  RemoveControllerTwo(now);
  const Machine machine = Compare(Numbered(), now);
  ASSERT_THAT(HeadlinesOf(machine), ElementsAre("critical: C2 with 1 logical drive and 3 disks is missing"));
  EXPECT_THAT(machine.incidents.front().action, HasSubstr("CHECK the controller: Zentraxis C5, S/N SN6"));
  EXPECT_THAT(HeadlinesOf(Compare(now, Numbered())), ElementsAre("info: C2 is new, with 1 logical drive and 3 disks"));
}

TEST(Baseline, RecognisesControllersWhoseNumbersChangedByTheirSerialNumbers) {
  HealthyMachine now = Numbered();
  for (HealthyMachine::Device& device : now.devices) {
    for (auto& [name, value] : device.properties) {
      if (name == "ControllerNum") value = std::string(value) == "1" ? "2" : "1";
    }
  }
  EXPECT_THAT(HeadlinesOf(Compare(Numbered(), now)), IsEmpty());
}

TEST(Baseline, TakesNoControllerForAnotherThatGotItsNumber) {
  HealthyMachine before = Numbered();
  Put(before, "Zentraxis2", "SerialNum", "");
  HealthyMachine now = before;
  std::erase_if(now.devices, [](const HealthyMachine::Device& device) {
    return std::string(device.properties.front().second).find("Zentraxis1") == 0 ||
           std::string(device.properties.front().second).find("C1 ") == 0;
  });
  for (HealthyMachine::Device& device : now.devices) {
    for (auto& [name, value] : device.properties) {
      if (name == "ControllerNum" && std::string(value) == "2") value = "1";
    }
  }
  const std::vector<std::string> headlines = HeadlinesOf(Compare(before, now));
  EXPECT_THAT(headlines, testing::Contains("critical: C1 with 1 logical drive and 3 disks is missing"));
  EXPECT_THAT(headlines, testing::Not(testing::Contains(HasSubstr("was moved"))));
}

TEST(Baseline, DoesNotReportObjectsOfASilentUtilityAsMissing) {
  HealthyMachine now = Numbered();
  RemoveControllerTwo(now);
  now.runs.push_back(RunOf("arcconf", {"getconfig", "1", "al"}, Outcome::kTimedOut, "it did not answer within 60 s"));
  const Machine machine = Compare(Numbered(), now);
  EXPECT_THAT(HeadlinesOf(machine),
              ElementsAre("unknown: C2 with 1 logical drive and 3 disks is not shown: arcconf did not answer",
                          "unknown: arcconf did not answer within 60 s"));
}

TEST(Baseline, DoesNotReportObjectsThatAReplayThatEndedEarlyDoesNotShow) {
  HealthyMachine now = Numbered();
  RemoveControllerTwo(now);
  now.notRecorded = "zenx//hrconf_64.exe getconfig 1 al";
  const Machine machine = Compare(Numbered(), now);
  EXPECT_THAT(HeadlinesOf(machine),
              ElementsAre("unknown: C2 with 1 logical drive and 3 disks is not shown: arcconf did not answer",
                          "unknown: collection replay ended: the bundle does not hold " + now.notRecorded));
}

TEST(Baseline, ShowsHowFastErrorsGrowAndWarnsFromTheLimitOn) {
  HealthyMachine before = Numbered();
  HealthyMachine now = Numbered();
  Put(before, kErrors, "NumSoftErrors", "2");
  Put(now, kErrors, "NumSoftErrors", "5");
  EXPECT_THAT(HeadlinesOf(Compare(before, now)),
              ElementsAre("info: C1 disk at channel 1, ID 0 reports soft errors: 5, 3 more since 2026-11-19 09:30:00 "
                          "+01:00 (1.5 a day)"));
  Put(now, kErrors, "NumSoftErrors", "12");
  const Machine machine = Compare(before, now);
  EXPECT_THAT(HeadlinesOf(machine),
              ElementsAre("warning: C1 disk at channel 1, ID 0 reports soft errors: 12, 10 more since 2026-11-19 "
                          "09:30:00 +01:00 (5.0 a day)"));
  EXPECT_EQ(machine.findings.size(), 2U) << "the count and its growth have one cause";
  EXPECT_THAT(HeadlinesOf(Compare(now, before)), IsEmpty()) << "counters may be reset";
}

TEST(Expectations, MissControllersAndDisksThatAreFewerThanExpected) {
  const HealthyMachine machine = Numbered();
  QueryHeader header = machine.Header();
  header.expectations.controllers = 2;
  header.expectations.disks = 6;
  EXPECT_THAT(HeadlinesOf(BuildMachine(header, machine.Result())), IsEmpty());
  header.expectations.controllers = 3;
  header.expectations.disks = 7;
  EXPECT_THAT(HeadlinesOf(BuildMachine(header, machine.Result())),
              ElementsAre("critical: 2 of 3 controllers are there", "critical: 6 of 7 disks are there"));
}

}  // namespace
