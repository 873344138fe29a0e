#include "host/hxahost/machine/machine.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/views/monitoring/health_report.h"
#include "host/hxahost/views/report/report_data.h"
#include "host/hxahost/views/tables/table_view.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

Machine Built(const HealthyMachine& machine) { return BuildMachine(machine.Header(), machine.Result()); }

// The only device of a machine that has these properties: alternating names and values.
template <class... Given>
Device DeviceWith(const Given&... given) {
  FilledRepository repository;
  repository.Publish(kDiskDrive, given...);
  return BuildMachine({}, {2, repository.Instances(), {}}).controllers.at(0).devices.at(0);
}

TEST(Machine, HasItsControllersWithTheirObjects) {
  const Machine machine = Built(HealthyMachine());
  ASSERT_EQ(machine.controllers.size(), 2U);
  const Controller& controller = machine.controllers[1];
  EXPECT_EQ(controller.number, "2");
  EXPECT_EQ(controller.label, "2");
  EXPECT_EQ(controller.tool, "arcconf");
  ASSERT_EQ(controller.units.size(), 1U);
  EXPECT_EQ(controller.units[0].name, "controller 2 (Zentraxis C5)");
  EXPECT_EQ(controller.units[0].battery.state.text, "Optimal");
  EXPECT_EQ(controller.units[0].battery.state.level, Level::kFine);
  ASSERT_EQ(controller.logicalDrives.size(), 1U);
  EXPECT_THAT(controller.logicalDrives[0].groups, ElementsAre(0));
  EXPECT_THAT(controller.logicalDrives[0].devices, ElementsAre(0, 1));
  ASSERT_EQ(controller.groups.size(), 1U);
  EXPECT_THAT(controller.groups[0].devices, ElementsAre(0, 1));
  EXPECT_EQ(controller.devices.size(), 5U);
  EXPECT_EQ(CountOf(machine, kDiskDrive), 9U);
  EXPECT_THAT(machine.findings, IsEmpty());
}

TEST(Machine, FindsTheDisksOfADriveByTheLetterOfItsArray) {
  const Machine machine = Built(HealthyMachine());
  const Controller& controller = machine.controllers[0];
  EXPECT_THAT(controller.logicalDrives[0].groups, ElementsAre(0));
  EXPECT_THAT(controller.logicalDrives[0].devices, IsEmpty()) << "it names none itself";
  EXPECT_THAT(controller.groups[0].devices, ElementsAre(0, 1));
}

TEST(Machine, SeparatesTheControllersOfTwoToolsWithOneNumber) {
  FilledRepository repository;
  repository.Publish(kLogicalDisk, "ControllerNum", "3", "DriveList", "0,1", "PartOfArray", "A");
  repository.Publish(kLogicalDisk, "ControllerNum", "3", "DriveList", "0,1", "NumOfChunks", "2");
  repository.Publish(kDiskDrive, "ControllerNum", "3", "DeviceNumber", "4", "ReportedChannel", "0,1");
  const Machine machine = BuildMachine({}, {2, repository.Instances(), {}});
  ASSERT_EQ(machine.controllers.size(), 2U);
  EXPECT_EQ(machine.controllers[0].label, "3 (qcmdrun)");
  EXPECT_THAT(machine.controllers[0].logicalDrives[0].devices, IsEmpty());
  EXPECT_EQ(machine.controllers[1].label, "3 (hrconf_64)");
  EXPECT_THAT(machine.controllers[1].logicalDrives[0].devices, ElementsAre(0));
  EXPECT_THAT(machine.controllers[1].units, IsEmpty());
}

// Counts contain only the number of their controller.
TEST(Machine, AssignsCountsToTheLegacyUtilitysControllerIfTwoShareItsNumber) {
  FilledRepository repository;
  repository.Publish(kLogicalDisk, "ControllerNum", "3", "LogicalDriveNum", "1", "PartOfArray", "A");
  repository.Publish(kLogicalDisk, "ControllerNum", "3", "LogicalDriveNum", "1", "NumOfChunks", "2");
  repository.Publish(kDiskDrive, "ControllerNum", "3", "Channel", "0", "ScsiId", "1");
  repository.Publish(kDiskDrive, "ControllerNum", "3", "DeviceNumber", "4", "ReportedChannel", "0,1");
  repository.Publish("KVRSG_zxSCSIDeviceData", "ControllerNum", "3", "Channel", "0", "ScsiId", "1", "NumHardErrors",
                     "4", "NumSoftErrors", "x", "NumParityErrors", "99999999999999999999");
  for (const char* const count : {"2", "0", "none"}) {
    repository.Publish("KVRSG_BadStripeData", "ControllerNum", "3", "LogicalDrive", "1", "NumBadStripes", count);
  }
  const Machine machine = BuildMachine({}, {2, repository.Instances(), {}});
  ASSERT_EQ(machine.controllers.size(), 2U);
  const Controller& legacy = machine.controllers[0];
  EXPECT_EQ(legacy.logicalDrives[0].badStripes, 2U);
  ASSERT_TRUE(legacy.devices[0].errors);
  EXPECT_EQ(legacy.devices[0].errors->hard, 4U);
  EXPECT_EQ(legacy.devices[0].errors->soft, 0U);
  EXPECT_EQ(legacy.devices[0].errors->parity, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(machine.controllers[1].logicalDrives[0].badStripes, 0U);
  EXPECT_FALSE(machine.controllers[1].devices[0].errors);
}

TEST(Machine, DescribesADevice) {
  const Device device =
      DeviceWith("ControllerNum", "4", "Channel", "0", "ScsiId", "8", "DeviceType", "Hard drive", "Vendor", "NORDVIK",
                 "Model", " NV73-15SAS\r\n", "DeviceSerialNum", "NV3LE77Q2H", "FRU", "ZX20912", "Firmware", "BA31",
                 "Size", "70007 MB", "ReportedLocation", "Enclosure 0, Slot 8");
  EXPECT_EQ(device.name, "Hard drive at channel 0, ID 8 of controller 4");
  EXPECT_EQ(device.location, "enclosure 0, slot 8");
  EXPECT_THAT(
      (std::vector{device.channel, device.id, device.type, device.vendor, device.model, device.serialNumber, device.fru,
                   device.firmware, device.size}),
      ElementsAre("0", "8", "Hard drive", "NORDVIK", "NV73-15SAS", "NV3LE77Q2H", "ZX20912", "BA31", "70007 MB"));
  EXPECT_EQ(device.bytes, 70007ULL * 1024 * 1024);
}

TEST(Machine, LocatesADeviceByTheBestProperty) {
  EXPECT_EQ(DeviceWith("Channel", "2", "ScsiId", "4").location, "channel 2, ID 4");
  EXPECT_EQ(DeviceWith("Channel", "0", "ReportedChannel", "0,7").location, "channel 0, ID 7");
  EXPECT_EQ(DeviceWith("DeviceNumber", "Device #4").location, "device 4");
  EXPECT_EQ(DeviceWith("DeviceType", "Tape drive").location, "");
}

TEST(Machine, ReadsTheOperationsOfAController) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxSCSIProtocolController", "Current_MostRecentOperation", "Rebuild", "Logical_Drive", "3",
                     "LastCmdStatus", "In progress", "LogicalDriveSizeInStripes", "4442880", "NumberOfRemainingStripes",
                     "1466150");
  const Machine machine = BuildMachine({}, {2, repository.Instances(), {}});
  ASSERT_EQ(machine.controllers.at(0).units.at(0).operations.size(), 1U);
  const Operation& operation = machine.controllers[0].units[0].operations[0];
  EXPECT_THAT((std::vector{operation.name, operation.logicalDrive, operation.status}),
              ElementsAre("Rebuild", "3", "In progress"));
  EXPECT_TRUE(operation.isActive);
  EXPECT_NEAR(operation.percent.value_or(0), 67.0, 0.01);
}

TEST(Machine, ReadsSizes) {
  EXPECT_EQ(ReadBytes("34715/71096320"), 71096320ULL * 512);
  EXPECT_EQ(ReadBytes("40960"), 40960ULL << 20);
  EXPECT_EQ(ReadBytes("70007 MB"), 70007ULL << 20);
  EXPECT_EQ(ReadBytes("1.5 GB"), 3ULL << 29);
  EXPECT_EQ(ReadBytes("2TB"), 2ULL << 40);
  for (const char* const text : {"", "MB", "-1", "inf", "1e300", "12 parsecs", "1/2 MB", "1/", "9e18"}) {
    EXPECT_EQ(ReadBytes(text), std::nullopt) << text;
  }
}

// The level of a disk that is being rebuilt. Controller 1: array A cannot tolerate a failure, B can. Controller 2:
// drive 1 cannot, 2 can.
template <class... Given>
Level LevelOfRebuild(const char* controller, const Given&... given) {
  FilledRepository repository;
  const auto drive = [&](const char* number, const char* state, const char* property, const char* members) {
    repository.Publish(kLogicalDisk, "ControllerNum", number, "LogicalDriveStatus", state, property, members);
  };
  drive("1", "Critical (CRT)", "PartOfArray", "A");
  drive("1", "Okay (OKY)", "PartOfArray", "B");
  drive("2", "Degraded", "DriveList", " 0,1 0,2\r\n");
  drive("2", "Optimal", "DriveList", "0,3 0,11");
  repository.Publish(kDiskGroup, "Array", "A", "ControllerNum", "1", "StripeOrder", "1,0 1,1");
  repository.Publish(kDiskGroup, "Array", "B", "ControllerNum", "1", "StripeOrder", "1,10");
  repository.Publish(kDiskDrive, "ControllerNum", controller, "State", "Rebuild (RBL)", given...);
  const Machine machine = BuildMachine({}, {2, repository.Instances(), {}});
  const auto has = std::ranges::find_if(machine.controllers, [](const auto& each) { return !each.devices.empty(); });
  return has->devices.front().state.level;
}

TEST(Machine, WarnsOfARebuildOnDrivesThatAreNotGuarded) {
  EXPECT_EQ(LevelOfRebuild("1", "Channel", "1", "ScsiId", "1"), Level::kWarning) << "in the stripe order";
  EXPECT_EQ(LevelOfRebuild("1", "Channel", "1", "ScsiId", "10"), Level::kBusy) << "in the order of the other array";
  EXPECT_EQ(LevelOfRebuild("2", "Channel", "0", "ScsiId", "1"), Level::kWarning) << "in the drive's list";
  EXPECT_EQ(LevelOfRebuild("2", "Channel", "0", "ScsiId", "11"), Level::kBusy) << "in the other drive's list";
  EXPECT_EQ(LevelOfRebuild("2", "ReportedChannel", "0,2"), Level::kWarning) << "its place reported whole";
  EXPECT_EQ(LevelOfRebuild("2", "ReportedChannel", "0,3"), Level::kBusy);
  EXPECT_EQ(LevelOfRebuild("2", "Channel", "0", "ScsiId", "7"), Level::kWarning) << "in no list";
  EXPECT_EQ(LevelOfRebuild("3", "Channel", "0", "ScsiId", "1"), Level::kBusy) << "of another controller";
}

TEST(Machine, AssignsFindingsToTheirObjectsWithTheWorstLevel) {
  HealthyMachine broken;
  broken.SetOf("C1 CH1 I01:B", "PFA", "Yes");
  broken.SetOf("Zentraxis2", "DefunctDiskDriveCnt", "1");
  const Machine machine = Built(broken);
  const Device& disk = machine.controllers[0].devices[1];
  EXPECT_EQ(disk.state.level, Level::kFine);
  EXPECT_EQ(disk.level, Level::kWarning);
  ASSERT_EQ(disk.findings.size(), 1U);
  EXPECT_EQ(machine.findings[disk.findings[0]].property, "PFA");
  EXPECT_EQ(LevelOf(machine, disk, "PFA"), Level::kWarning);
  EXPECT_EQ(LevelOf(machine, disk, "State"), Level::kFine);
  EXPECT_EQ(LevelOf(machine, disk, "Model"), Level::kUnsaid);
  const ControllerUnit& unit = machine.controllers[1].units[0];
  EXPECT_EQ(unit.state.level, Level::kFine);
  EXPECT_EQ(unit.level, Level::kCritical);
}

// A value has the same level in every output.
TEST(Machine, IsJudgedAlikeInTablesReportHealthAndMetrics) {
  struct Case {
    const char* identifier;
    const char* property;
    const char* text;
    const char* level;
    const char* colour;
    const char* status;
  };
  constexpr const char* kDrive = "Zentraxis2LD1";
  constexpr const char* kDisk = "C2 CH0 I01:Controller: Device #1";
  const Case cases[] = {
      {kDrive, "LogicalDriveStatus", "Okay (OKY)",                    "ok",       "\x1b[32m", "0"},
      {kDrive, "LogicalDriveStatus", "Okay (CRT)",                    "critical", "\x1b[31m", "2"},
      {kDrive, "LogicalDriveStatus", "Critical (CRT)",                "critical", "\x1b[31m", "2"},
      {kDrive, "LogicalDriveStatus", "Degraded",                      "critical", "\x1b[31m", "2"},
      {kDrive, "LogicalDriveStatus", "Blocked (BLK)",                 "critical", "\x1b[31m", "2"},
      {kDrive, "LogicalDriveStatus", "Impacted",                      "warning",  "\x1b[33m", "1"},
      {kDrive, "LogicalDriveStatus", "Rebuilding",                    "warning",  "\x1b[33m", "1"},
      {kDrive, "LogicalDriveStatus", "Migrating",                     "busy",     "\x1b[32m", "0"},
      {kDisk,  "State",              "Online",                        "ok",       "\x1b[32m", "0"},
      {kDisk,  "State",              "Available",                     "idle",     "\x1b[32m", "0"},
      {kDisk,  "State",              "Rebuilding",                    "busy",     "\x1b[32m", "0"},
      {kDisk,  "State",              "Hot Spare for Logical drive 1", "idle",     "\x1b[32m", "0"},
      {kDisk,  "State",              "Defunct hot-spare (DHS)",       "warning",  "\x1b[33m", "1"},
      {kDisk,  "State",              "Ready for removal",             "unknown",  "\x1b[35m", "3"},
      {kDisk,  "State",              "Online, not responding",        "unknown",  "\x1b[35m", "3"},
      {kDisk,  "State",              "Failed",                        "critical", "\x1b[31m", "2"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    HealthyMachine machine;
    machine.SetOf(each.identifier, each.property, each.text);
    QueryHeader header = machine.Header();
    header.layout = {200, true};
    header.isVerbose = true;
    const QueryResult result = machine.Result();

    std::ostringstream tables;
    WriteQueryTables(tables, header, result);
    EXPECT_THAT(tables.str(), HasSubstr(std::string(each.colour) + each.text + "\x1b[0m"));

    const Machine built = BuildMachine(header, result);
    std::ostringstream report;
    WriteReportData(report, header, result, built);
    const std::string property = each.property;
    const Object& object = property == "State" ? static_cast<const Object&>(built.controllers[1].devices[1])
                                               : built.controllers[1].logicalDrives[0];
    const auto objects = nlohmann::json::parse(report.str())["objects"];
    const auto entry = std::ranges::find_if(
        objects, [&object](const nlohmann::json& candidate) { return candidate["instance"] == object.instance; });
    EXPECT_EQ((*entry)["level"], each.level);
    EXPECT_EQ((*entry)["stateLevel"], each.level);

    EXPECT_EQ(std::to_string(static_cast<int>(WorstOf(built.findings))), each.status);
    std::ostringstream metrics;
    WriteHealthMetrics(metrics, {header, result, built, 0});
    const std::string labels = "_state{controller=\"2\",tool=\"arcconf\",";
    const std::string series =
        property == "State" ? "zenx_disk" + labels + "disk=\"0,1\"} " : "zenx_logical_drive" + labels + "drive=\"1\"} ";
    EXPECT_THAT(metrics.str(), HasSubstr(series + each.status + "\n"));
  }
}

}  // namespace
