#include "publish/publish_devices.h"

#include <gtest/gtest.h>

#include "tests/support/publishing.h"

namespace {

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

// Blanks and line ends are cut.
std::string Cut(const std::string& name) { return name; }

TEST(PublishDevices, PublishEachFieldTrimmedUnderItsOwnName) {
  Publishing host;
  ZenxController& controller = host.AddController("");
  NameFields(controller);
  AddNamed(controller.LogicalDevices);
  AddNamed(controller.StripeOrders);
  AddNamed(controller.PhysicalDevices);
  host.Run(PublishControllers, kController);
  host.Run(PublishLogicalDisks, kLogicalDisk);
  host.Run(PublishDiskGroups, kDiskGroup);
  host.Run(PublishDiskDrives, kDiskDrive);
  const std::string system = "SystemCreationClassName = \"KVRSG_ComputerSystem\"";
  const std::string machine = "SystemName = \"MACHINE\"";
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kController, Cut,
                                 {system, machine, "CreationClassname = \"KVRSG_zxSCSIProtocolController\"",
                                  "DeviceID = \"ZentraxisControllerNum\"",
                                  "OtherIdentifyingInfo = string[\"ControllerType\", \" Controller:ControllerNum\"]"}));
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kLogicalDisk, Cut,
                                 {system, machine, "CreationClassname = \"KVRSG_zxLogicalDisk\"",
                                  "DeviceID = \"ZentraxisControllerNumLDLogicalDriveNum\""}));
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kDiskGroup, Cut, {}));
  EXPECT_TRUE(
      IsNamedAfterFields(host.nameSpace, kDiskDrive, Cut,
                         {system, machine, "CreationClassname = \"KVRSG_zxDiskDrive\"",
                          "DeviceID = \"CControllerNum CH0 I00:DeviceIdSuffix\"",
                          "OtherIdentifyingInfo = string[\"DeviceType\", \"Channel:Channel|SCSI ID:ScsiId\"]"}));
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
  EXPECT_EQ(host.log.entries, Entries{});
  host.Run(PublishLogicalDisks, kLogicalDisk);
  host.Run(PublishDiskGroups, kDiskGroup);
  host.Run(PublishDiskDrives, kDiskDrive);
  EXPECT_EQ(host.nameSpace.Published(kController, "ControllerNum"), (Properties{"3", "4"}));
  EXPECT_EQ(host.nameSpace.Published(kLogicalDisk, "ControllerNum"), (Properties{"1", "2", "3", "4"}));
  EXPECT_EQ(host.nameSpace.Published(kDiskGroup).size(), 4U);
  EXPECT_EQ(host.nameSpace.Published(kDiskDrive).size(), 4U);
}

TEST(PublishDevices, WithoutControllersOrTheirPartsNothingIsPublishedOrLogged) {
  Publishing host;
  host.ExpectNothing(PublishControllers, kController, {});
  host.AddController("1");
  host.ExpectNothing(PublishLogicalDisks, kLogicalDisk, {});
  host.ExpectNothing(PublishDiskGroups, kDiskGroup, {});
  host.ExpectNothing(PublishDiskDrives, kDiskDrive, {});
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
