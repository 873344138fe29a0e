#include "host/hxahost/fleet/fleet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include <nlohmann/json.hpp>

#include "host/hxahost/fleet/fleet_pages.h"
#include "host/hxahost/fleet/fleet_rows.h"
#include "host/hxahost/fleet/fleet_view.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/views/json/json_view.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::int64_t kDay = 86400;

FleetMachine MachineOf(const std::string& name, std::int64_t day, Severity state = Severity::kFine) {
  FleetMachine machine;
  machine.name = name;
  machine.seconds = day * kDay;
  machine.time = "202611" + std::to_string(10 + day) + "000000.000000+000";
  machine.state = state;
  machine.controllers = {
      {"C1", "Model", "1.0"}
  };
  return machine;
}

FleetMachine WithDisk(FleetMachine machine, const std::string& serialNumber, const std::string& place) {
  machine.disks.push_back({"DISK", "F1", serialNumber, place});
  return machine;
}

std::vector<std::string> NamesOf(const Fleet& fleet) {
  std::vector<std::string> names;
  for (const FleetMachine* const machine : fleet.Machines()) names.push_back(machine->name);
  return names;
}

TEST(Fleet, HasTheWorstMachinesFirstAndOfThoseTheStaleOnes) {
  Fleet fleet({10 * kDay, 7});
  fleet.Add(MachineOf("fine", 9));
  fleet.Add(MachineOf("unknown", 9, Severity::kUnknown));
  fleet.Add(MachineOf("old", 2));
  fleet.Add(MachineOf("warning", 9, Severity::kWarning));
  fleet.Add(MachineOf("critical", 9, Severity::kCritical));
  EXPECT_THAT(NamesOf(fleet), ElementsAre("critical", "warning", "unknown", "old", "fine"));
}

TEST(Fleet, CountsTheNewestResultOfEachMachine) {
  Fleet fleet({10 * kDay, {}});
  fleet.Add(MachineOf("A", 5, Severity::kCritical));
  fleet.Add(MachineOf("A", 9));
  fleet.Add(MachineOf("A", 7, Severity::kWarning));
  ASSERT_EQ(fleet.Machines().size(), 1U);
  EXPECT_EQ(fleet.Machines().front()->state, Severity::kFine);
  EXPECT_EQ(fleet.AgeOf(*fleet.Machines().front()), kDay);
  EXPECT_EQ(VerdictText(fleet), "1 machine: 1 ok");
}

TEST(Fleet, IsStaleFromTheFirstSecondPastTheDays) {
  Fleet fleet({10 * kDay, 7});
  FleetMachine machine = MachineOf("A", 3);
  EXPECT_FALSE(fleet.IsStale(machine));
  --*machine.seconds;
  EXPECT_TRUE(fleet.IsStale(machine));
  machine.seconds.reset();
  EXPECT_TRUE(fleet.IsStale(machine)) << "nobody knows";
  EXPECT_FALSE(Fleet({10 * kDay, {}}).IsStale(machine)) << "nobody asked";
}

// A clock that runs ahead must not hide what the machine writes once it is right.
TEST(Fleet, PrefersAnyResultToOneFromTheFuture) {
  const FleetMachine future = MachineOf("A", 12, Severity::kCritical);
  FleetMachine untimed = MachineOf("A", 0, Severity::kWarning);
  untimed.seconds.reset();
  for (const auto& [present, state] : {
           std::pair(MachineOf("A", 9), Severity::kFine), {untimed, Severity::kWarning}
  }) {
    for (const auto& [first, second] : {std::pair(future, present), std::pair(present, future)}) {
      Fleet fleet({10 * kDay, 7});
      fleet.Add(first);
      fleet.Add(second);
      ASSERT_EQ(fleet.Machines().size(), 1U);
      EXPECT_EQ(fleet.Machines().front()->state, state);
    }
  }
}

TEST(Fleet, IsStaleIfItsOnlyResultsAreFromTheFuture) {
  Fleet fleet({10 * kDay, 7});
  fleet.Add(MachineOf("A", 12));
  FleetMachine machine = MachineOf("B", 11);
  EXPECT_FALSE(fleet.IsStale(machine)) << "clocks and time zones differ";
  ++*machine.seconds;
  EXPECT_TRUE(fleet.IsStale(machine));
  EXPECT_FALSE(Fleet({10 * kDay, {}}).IsStale(machine)) << "nobody asked";
  EXPECT_EQ(WorstOf(fleet), Severity::kUnknown);
  std::ostringstream out;
  WriteFleetTable(out, {fleet});
  EXPECT_THAT(out.str(), testing::ContainsRegex("  A +ok +future"));
}

TEST(Fleet, DoesNotTakeAPlaceOfTheFutureForAnOlderOne) {
  Fleet fleet({10 * kDay, {}});
  fleet.Add(WithDisk(MachineOf("A", 12), "S1", "C1 slot 1"));
  fleet.Add(WithDisk(MachineOf("A", 9), "S1", "C1 slot 2"));
  EXPECT_TRUE(fleet.MovedDisks().empty());
}

TEST(Fleet, IsUnknownIfMachinesAreStaleOrFilesDamaged) {
  Fleet fleet({10 * kDay, 7});
  EXPECT_EQ(WorstOf(fleet), Severity::kUnknown) << "no machine";
  fleet.Add(MachineOf("A", 9));
  EXPECT_EQ(WorstOf(fleet), Severity::kFine);
  Fleet stale = fleet;
  stale.Add(MachineOf("B", 1));
  EXPECT_EQ(WorstOf(stale), Severity::kUnknown);
  EXPECT_EQ(VerdictText(stale), "2 machines: 2 ok; 1 stale");
  fleet.Add(DamagedFile{"f", "f is damaged"});
  EXPECT_EQ(WorstOf(fleet), Severity::kUnknown);
  EXPECT_EQ(VerdictText(fleet), "1 machine: 1 ok; 1 damaged file");
}

TEST(Fleet, CountsDisksByModelAndFirmware) {
  Fleet fleet({10 * kDay, {}});
  FleetMachine one = MachineOf("A", 9);
  one.disks = {
      {"DISK", "F1", "1", "", false, false},
      {"DISK", "F1", "2", "", false, true },
      {"DISK", "F2", "3", "", true,  false},
  };
  fleet.Add(one);
  fleet.Add(WithDisk(MachineOf("B", 9), "4", ""));
  const auto models = fleet.DiskModels();
  ASSERT_EQ(models.size(), 2U);
  EXPECT_EQ(models[0].firmware, "F2") << "more failed";
  EXPECT_EQ(models[0].failed, 1U);
  EXPECT_EQ(models[1].disks, 3U);
  EXPECT_EQ(models[1].predicted, 1U);
  EXPECT_EQ(models[1].machines, 2U);
}

TEST(Fleet, ListsTheMachinesOfEachFirmwareOfControllers) {
  Fleet fleet({10 * kDay, {}});
  fleet.Add(MachineOf("A", 9));
  FleetMachine old = MachineOf("B", 9);
  old.controllers = {
      {"C1", "Model", "0.9"},
      {"C2", "Model", "0.9"}
  };
  fleet.Add(old);
  const auto models = fleet.ControllerModels();
  ASSERT_EQ(models.size(), 2U);
  EXPECT_EQ(models[0].firmware, "0.9");
  EXPECT_EQ(models[0].controllers, 2U);
  EXPECT_THAT(models[0].machines, ElementsAre("B"));
}

TEST(Fleet, FindsASerialNumberInTwoMachines) {
  Fleet fleet({10 * kDay, {}});
  fleet.Add(WithDisk(WithDisk(MachineOf("A", 9), "S1", "C1 slot 1"), "S2", "C1 slot 2"));
  fleet.Add(WithDisk(WithDisk(MachineOf("B", 9), "S1", "C1 slot 7"), "", "C1 slot 8"));
  fleet.Add(WithDisk(MachineOf("C", 9), "", "C1 slot 8"));
  const auto shared = fleet.SharedSerialNumbers();
  ASSERT_EQ(shared.size(), 1U);
  EXPECT_EQ(shared[0].serialNumber, "S1");
  ASSERT_EQ(shared[0].seen.size(), 2U);
  EXPECT_EQ(shared[0].seen[1].machine, "B");
}

TEST(Fleet, FindsDisksThatMovedFromTheirLastPlace) {
  Fleet fleet({10 * kDay, {}});
  fleet.Add(WithDisk(MachineOf("A", 1), "S1", "C1 slot 1"));
  fleet.Add(WithDisk(MachineOf("A", 5), "S1", "C1 slot 2"));
  fleet.Add(MachineOf("A", 9));
  fleet.Add(WithDisk(WithDisk(MachineOf("B", 9), "S1", "C1 slot 3"), "S2", "C1 slot 4"));
  fleet.Add(WithDisk(MachineOf("B", 8), "S2", "C1 slot 4"));
  const auto moved = fleet.MovedDisks();
  ASSERT_EQ(moved.size(), 1U) << "S2 did not move";
  EXPECT_EQ(moved[0].from.place, "C1 slot 2");
  EXPECT_EQ(moved[0].from.machine, "A");
  EXPECT_EQ(moved[0].to.machine, "B");
}

TEST(Fleet, ShowsAgesInTheLargestUnitWithAtLeastTwo) {
  EXPECT_EQ(AgeText(std::nullopt), "?");
  EXPECT_EQ(AgeText(-86400), "0 s");
  EXPECT_EQ(AgeText(-86401), "future");
  EXPECT_EQ(AgeText(1), "1 s");
  EXPECT_EQ(AgeText(119), "119 s");
  EXPECT_EQ(AgeText(120), "2 min");
  EXPECT_EQ(AgeText(2 * 86400 - 1), "47 h");
  EXPECT_EQ(AgeText(9 * 86400), "9 d");
}

// The output of "hxahost query --format json", read back.
JsonResult ReadBack(const HealthyMachine& machine) {
  std::ostringstream out;
  QueryHeader header = machine.Header();
  header.machine = "DB01";
  header.time = NKVRHXA20::TCIMDateTime("20261121093000.000000+060");
  header.withRuns = true;
  BeginJson(out, header);
  WriteQueryJson(out, header, machine.Result());
  EndJson(out, header);
  return ParseJsonResult(out.str(), "f");
}

TEST(JudgedResult, IsJudgedAsTheMachineItself) {
  HealthyMachine healthy;
  EXPECT_EQ(StateOf(JudgeResult("f", ReadBack(healthy), {}, HealthClasses()).machine), Severity::kFine);
  healthy.Set("KVRSG_zxLogicalDisk", "LogicalDriveStatus", "Offline (OFL)");
  const JudgedResult judged = JudgeResult("f", ReadBack(healthy), {}, HealthClasses());
  EXPECT_EQ(StateOf(judged.machine), Severity::kCritical);
  EXPECT_EQ(judged.machine.incidents.size(), BuildMachine(healthy.Header(), healthy.Result()).incidents.size());
  const FleetMachine summary = Summarize(judged);
  EXPECT_EQ(summary.name, "DB01");
  EXPECT_EQ(summary.controllers.size(), 2U);
  EXPECT_GT(summary.disks.size(), 4U);
  EXPECT_EQ(summary.machine.incidents.size(), judged.machine.incidents.size());
}

TEST(JudgedResult, IsUnknownIfNothingWasFound) {
  JsonResult nothing;
  nothing.machine = "M";
  EXPECT_EQ(StateOf(JudgeResult("f", nothing, {}, HealthClasses()).machine), Severity::kUnknown);
}

TEST(FleetRows, AreTheMachineItsIncidentsAndItsObjects) {
  HealthyMachine machine;
  machine.Set("KVRSG_zxLogicalDisk", "LogicalDriveStatus", "Offline (OFL)");
  std::ostringstream out;
  WriteCsvRows(out, JudgeResult("f.json", ReadBack(machine), {}, HealthClasses()));
  EXPECT_THAT(out.str(), testing::StartsWith("DB01,20261121093000.000000+060,machine,DB01,critical,"));
  EXPECT_THAT(out.str(), HasSubstr("\r\nDB01,20261121093000.000000+060,incident,"));
  EXPECT_THAT(out.str(), HasSubstr("is offline"));
  EXPECT_THAT(out.str(), HasSubstr("\r\nDB01,20261121093000.000000+060,disk,"));
}

TEST(FleetRows, AreFollowedInJsonByTheInstancesAsTheQueryWritesThem) {
  HealthyMachine machine;
  std::ostringstream out;
  WriteJsonRows(out, JudgeResult("f.json", ReadBack(machine), {}, HealthClasses()));
  QueryHeader header = machine.Header();
  header.machine = "DB01";
  header.time = NKVRHXA20::TCIMDateTime("20261121093000.000000+060");
  std::ostringstream lines;
  WriteQueryJsonLines(lines, header, machine.Result());
  EXPECT_TRUE(out.str().ends_with(lines.str()));
  EXPECT_THAT(out.str(), testing::StartsWith(
                             R"({"machine":"DB01","time":"20261121093000.000000+060","class":"machine","path":"DB01",)"
                             R"("properties":{"level":"ok","source":"f.json"}})"));
}

TEST(FleetPages, HaveNamesThatDifferOnEverySystem) {
  Fleet fleet({10 * kDay, {}});
  for (const char* const name : {"DB", "db", "a/b", "a:b", "../up"}) fleet.Add(MachineOf(name, 9));
  const auto names = PageNames(fleet);
  EXPECT_EQ(names.at("../up"), "machine-___up.html");
  EXPECT_EQ(names.at("DB"), "machine-DB.html");
  EXPECT_EQ(names.at("db"), "machine-db-2.html");
  EXPECT_EQ(names.at("a/b"), "machine-a_b.html");
  EXPECT_EQ(names.at("a:b"), "machine-a_b-2.html");
}

TEST(FleetPages, HaveNamesThatFileSystemsPermitHoweverLongTheMachinesAre) {
  Fleet fleet({10 * kDay, {}});
  const std::string longName(1000, 'm');
  for (const char* const last : {"1", "2"}) fleet.Add(MachineOf(longName + last, 9));
  const auto names = PageNames(fleet);
  EXPECT_LT(names.at(longName + "1").size(), 150U);
  EXPECT_LT(names.at(longName + "2").size(), 150U);
  EXPECT_NE(names.at(longName + "1"), names.at(longName + "2"));
}

TEST(FleetPages, AreLinkedFromTheFolderOfThePage) {
  EXPECT_EQ(LinkBetween("out", "out/pages"), "pages");
  EXPECT_EQ(LinkBetween("out", "all pages"), "../all%20pages");
  EXPECT_EQ(LinkBetween("", "pages"), "pages");
}

TEST(FleetPage, ShowsNamesAsTextOnly) {
  Fleet fleet({10 * kDay, {}});
  fleet.Add(MachineOf("<script>alert(1)</script>", 9, Severity::kCritical));
  std::ostringstream out;
  WriteFleetPage(out, {fleet});
  EXPECT_THAT(out.str(), Not(HasSubstr("<script>alert")));
  EXPECT_THAT(out.str(), HasSubstr("&lt;script&gt;alert(1)"));
}

TEST(FleetTable, SumsUpHealthyMachinesUnlessAllAreRequested) {
  Fleet fleet({10 * kDay, {}});
  for (int number = 100; number < 130; ++number) fleet.Add(MachineOf("M" + std::to_string(number), 9));
  fleet.Add(MachineOf("bad", 9, Severity::kCritical));
  std::ostringstream few;
  WriteFleetTable(few, {fleet});
  EXPECT_THAT(few.str(), testing::StartsWith("CRITICAL 31 machines: 1 critical, 30 ok\n\n  Machine  State     Age"));
  EXPECT_THAT(few.str(), HasSubstr("  M119 "));
  EXPECT_THAT(few.str(), Not(HasSubstr("  M120 ")));
  EXPECT_THAT(few.str(), HasSubstr("  and 10 more with nothing wrong: --all shows them\n"));
  std::ostringstream all;
  WriteFleetTable(all, {fleet, {}, true});
  EXPECT_THAT(all.str(), HasSubstr("  M129 "));
  EXPECT_THAT(all.str(), Not(HasSubstr("--all")));
}

}  // namespace
