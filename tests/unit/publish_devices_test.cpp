#include "publish/publish_devices.h"

#include <gtest/gtest.h>

#include "tests/support/device_fields.h"
#include "tests/support/publishing.h"

namespace {

using Properties = std::vector<std::string>;
using Instances = std::vector<Properties>;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

// The rows that are given, then one for each name.
Properties Rows(Properties rows, const std::vector<std::string>& sameNames) {
  for (const std::string& name : sameNames) rows.push_back(SameName(name));
  return rows;
}

TEST(PublishDevices, PublishesAControllerFieldByFieldInTheDeclaredOrder) {
  Publishing host;
  NameFields<ZenxController>(host.AddController(""), kControllerFields);
  host.Run(PublishControllers, kController);
  const Properties expected = Rows(
      {"SystemCreationClassName = \"KVRSG_ComputerSystem\"", "CreationClassname = \"KVRSG_zxSCSIProtocolController\"",
       "SystemName = \"MACHINE\"", "DeviceID = \"ZentraxisControllerNum\"",
       "OtherIdentifyingInfo = string[\"ControllerType\", \" Controller:ControllerNum\"]"},
      {"ControllerNum",
       "ControllerType",
       "ControllerStatus",
       "ChannelDescription",
       "SerialNum",
       "ControllerSlotInfo",
       "InstalledMemory",
       "PartNum",
       "DeviceDriverVersion",
       "ClusterSolutionVersion",
       "CopyBackEnabled",
       "ControllerName",
       "ScsiChannelDescr",
       "InitiatorChannelScsiId",
       "MaxPhysicalDevices",
       "DefunctDiskDriveCnt",
       "LogicalDriveStatusCnt",
       "ReadAhead",
       "StripeUnitSize",
       "RebuildRate",
       "HotSwapRebuild",
       "DataScrubbing",
       "HotSpareCopyBack",
       "PartOfCluster",
       "UnattendedMode",
       "ConcurrentCommandsSupported",
       "ConfigurationUpdateCount",
       "Current_MostRecentOperation",
       "Logical_Drive",
       "BackgroundOperationActive",
       "LastCmdStatus",
       "LogicalDriveSizeInStripes",
       "NumberOfRemainingStripes",
       "VPD",
       "ECVersion",
       "ControllerFRU",
       "ControllerTemp",
       "ControllerBatteryStatus",
       "ControllerBatteryOverTemp",
       "ControllerBatteryCapacity",
       "ControllerBatteryFRU",
       "BatteryTimeRemaining"});
  EXPECT_EQ(host.nameSpace.Published(kController), Instances{expected});
}

TEST(PublishDevices, PublishesALogicalDiskFieldByFieldInTheDeclaredOrder) {
  Publishing host;
  NameFields<ZenxLogicalDevice>(Add(host.AddController("1").LogicalDevices), kLogicalDeviceFields);
  host.Run(PublishLogicalDisks, kLogicalDisk);
  const Properties expected =
      Rows({"DeviceID = \"Zentraxis1LDLogicalDriveNum\"", "SystemCreationClassName = \"KVRSG_ComputerSystem\"",
            "CreationClassname = \"KVRSG_zxLogicalDisk\"", "SystemName = \"MACHINE\"",
            "AccessBlocked = \"AccessBlocked\"", "ControllerNum = \"1\""},
           {"LogicalDriveNum", "LogicalDriveStatus", "NumOfChunks", "NumOfSegments", "PartOfArray", "PartOfMergeGroup",
            "RaidLevel", "Size", "StripeUnitSize", "StripeOrder", "WriteCacheStatus", "WriteCacheSetting",
            "Partitioned", "LogicalDriveName", "ReadCacheStatus", "DriveList", "DefunctSegments"});
  EXPECT_EQ(host.nameSpace.Published(kLogicalDisk), Instances{expected});
}

TEST(PublishDevices, PublishesADiskGroupFieldByFieldInTheDeclaredOrder) {
  Publishing host;
  NameFields<ArrayStripeOrder>(Add(host.AddController("1").StripeOrders), kStripeOrderFields);
  host.Run(PublishDiskGroups, kDiskGroup);
  EXPECT_EQ(host.nameSpace.Published(kDiskGroup),
            Instances{Rows({}, {"CollectionID", "Array", "ControllerNum", "StripeOrder"})});
}

TEST(PublishDevices, PublishesADiskDriveFieldByFieldInTheDeclaredOrder) {
  Publishing host;
  NameFields<ZenxPhysicalDevice>(Add(host.AddController("1").PhysicalDevices), kPhysicalDeviceFields);
  host.Run(PublishDiskDrives, kDiskDrive);
  const Properties expected = Rows(
      {"OtherIdentifyingInfo = string[\"DeviceType\", \"Channel:Channel|SCSI ID:ScsiId\"]",
       "DeviceID = \"C1 CH0 I00:DeviceIdSuffix\"", "SystemCreationClassName = \"KVRSG_ComputerSystem\"",
       "CreationClassname = \"KVRSG_zxDiskDrive\"", "SystemName = \"MACHINE\""},
      {"ControllerNum", "Channel",          "DeviceNumber",    "ScsiId",        "DeviceType", "PFA",    "State",
       "Size",          "DeviceCode",       "DeviceSerialNum", "FRU",           "Firmware",   "Vendor", "Model",
       "Enclosure",     "TransferSpeed",    "ReportedChannel", "WorldWideName", "WriteCache", "Type",   "EnclosureId",
       "ReportedESD",   "ReportedLocation", "Supported"});
  EXPECT_EQ(host.nameSpace.Published(kDiskDrive), Instances{expected});
}

TEST(PublishDevices, ADriveThatBeginsWithC1ChannelAndTarget) {
  Publishing host;
  ZenxPhysicalDevice& drive = Add(host.AddController("1").PhysicalDevices);
  drive.Channel = " 0\r\n";
  drive.ScsiId = " 3\r\n";
  drive.DeviceIdSuffix = " 3HY5\r\n";
  host.Run(PublishDiskDrives, kDiskDrive);
  EXPECT_EQ(host.nameSpace.Published(kDiskDrive, "DeviceID"), Properties{"C1 CH0 I03:3HY5"});
}

// One controller with one of everything, none of whose fields was found.
void AddBareController(Publishing& host, const std::string& number, const std::string& status) {
  ZenxController& controller = host.AddController(number);
  controller.ControllerStatus = status;
  Add(controller.LogicalDevices);
  Add(controller.StripeOrders);
  Add(controller.PhysicalDevices);
}

TEST(PublishDevices, AFailedControllerIsLeftOutWithoutAMessageAndItsDevicesAreNot) {
  Publishing host;
  AddBareController(host, "1", " Failed\r\n");
  AddBareController(host, "2", " Optimal, was Failed once\r\n");
  AddBareController(host, "3", " failed\r\n");
  AddBareController(host, "4", " Optimal\r\n");
  host.Run(PublishControllers, kController);
  EXPECT_EQ(host.log.entries, std::vector<LogEntry>{});
  host.Run(PublishLogicalDisks, kLogicalDisk);
  host.Run(PublishDiskGroups, kDiskGroup);
  host.Run(PublishDiskDrives, kDiskDrive);
  EXPECT_EQ(host.nameSpace.Published(kController, "ControllerNum"), (Properties{"3", "4"}));
  EXPECT_EQ(host.nameSpace.Published(kLogicalDisk, "ControllerNum"), (Properties{"1", "2", "3", "4"}));
  EXPECT_EQ(host.nameSpace.Published(kDiskGroup).size(), 4U);
  EXPECT_EQ(host.nameSpace.Published(kDiskDrive).size(), 4U);
}

TEST(PublishDevices, ARecordWithoutAnyValueIsPublishedWithEveryPropertyEmpty) {
  Publishing host;
  AddBareController(host, "", "");
  host.Run(PublishControllers, kController);
  host.Run(PublishLogicalDisks, kLogicalDisk);
  host.Run(PublishDiskGroups, kDiskGroup);
  host.Run(PublishDiskDrives, kDiskDrive);
  EXPECT_EQ(host.nameSpace.Published(kController).at(0).size(), 47U);
  EXPECT_EQ(host.nameSpace.Published(kController).at(0).back(), "BatteryTimeRemaining = \"\"");
  EXPECT_EQ(host.nameSpace.Published(kLogicalDisk).at(0).size(), 23U);
  EXPECT_EQ(host.nameSpace.Published(kDiskDrive).at(0).size(), 29U);
  EXPECT_EQ(host.nameSpace.Published(kDiskGroup),
            (Instances{
                {"CollectionID = \"\"", "Array = \"\"", "ControllerNum = \"\"", "StripeOrder = \"\""}
  }));
}

TEST(PublishDevices, WithoutControllersOrTheirPartsNothingIsPublishedOrLogged) {
  Publishing empty;
  Publishing bare;
  bare.AddController("1");
  for (Publishing* const host : {&empty, &bare}) {
    host->Run(PublishLogicalDisks, kLogicalDisk);
    host->Run(PublishDiskGroups, kDiskGroup);
    host->Run(PublishDiskDrives, kDiskDrive);
    EXPECT_TRUE(host->nameSpace.Published(kLogicalDisk).empty());
    EXPECT_TRUE(host->nameSpace.Published(kDiskGroup).empty());
    EXPECT_TRUE(host->nameSpace.Published(kDiskDrive).empty());
    EXPECT_EQ(host->log.entries, std::vector<LogEntry>{});
  }
  empty.Run(PublishControllers, kController);
  EXPECT_TRUE(empty.nameSpace.Published(kController).empty());
}

TEST(PublishDevices, DrivesAreListedControllerByControllerInListOrder) {
  Publishing host;
  for (const char* const number : {"1", "0"}) {
    ZenxController& controller = host.AddController(number);
    for (const char* const scsiId : {"9", "4"}) Add(controller.PhysicalDevices).ScsiId = scsiId;
  }
  host.Run(PublishDiskDrives, kDiskDrive);
  EXPECT_EQ(host.nameSpace.Published(kDiskDrive, "DeviceID"),
            (Properties{"C1 CH0 I09:", "C1 CH0 I04:", "C0 CH0 I09:", "C0 CH0 I04:"}));
}

}  // namespace
