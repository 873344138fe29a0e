#include "publish/publish_versions.h"

#include <gtest/gtest.h>

#include "tests/support/publishing.h"

namespace {

constexpr const char* kFirmware = "KVRSG_zxFirmwareVersion";
constexpr const char* kBootBlock = "KVRSG_zxBootBlockVersion";
constexpr const char* kBios = "KVRSG_zxBiosVersion";
constexpr const char* kDriveVersion = "KVRSG_zxDiskDriveVersion";

// An instance as it is published, without the properties that only hard disks have.
Properties Version(const std::string& name, const std::string& version, const std::string& build,
                   const std::string& identifier) {
  return {"Name = \"" + name + "\"",
          "Version = \"" + version + "\"",
          "BuildNumber = \"" + build + "\"",
          "SoftwareElementState = uint16 3",
          "SoftwareElementID = \"" + identifier + "\"",
          "TargetOperatingSystem = uint16 66"};
}

TEST(PublishVersions, TwoControllersGiveTwoFirmwareInstances) {
  Publishing host;
  host.AddController("1").FirmwareVersion = " 5.2-0 (12345)\r\n";
  host.AddController("2").FirmwareVersion = "7.0";
  host.Run(PublishFirmwareVersions, kFirmware);
  EXPECT_EQ(host.nameSpace.Published(kFirmware),
            (Instances{Version("Zentraxis1 Firmware", "5.2-0 (12345)", "12345", "1"),
                       Version("Zentraxis2 Firmware", "7.0", "", "2")}));
}

TEST(PublishVersions, EachClassReadsItsOwnText) {
  Publishing host;
  ZenxController& controller = host.AddController("1");
  controller.FirmwareVersion = "F (1)";
  controller.BootBlockVersion = "BB (2)";
  controller.BiosVersion = "B (3)";
  host.Run(PublishFirmwareVersions, kFirmware);
  host.Run(PublishBootBlockVersions, kBootBlock);
  host.Run(PublishBiosVersions, kBios);
  EXPECT_EQ(host.nameSpace.Published(kFirmware), Instances{Version("Zentraxis1 Firmware", "F (1)", "1", "1")});
  EXPECT_EQ(host.nameSpace.Published(kBootBlock), Instances{Version("Zentraxis Boot Block", "BB (2)", "2", "1")});
  EXPECT_EQ(host.nameSpace.Published(kBios), Instances{Version("Zentraxis1 BIOS", "B (3)", "3", "1")});
}

TEST(PublishVersions, AnOpeningParenthesisWithoutAClosingOneMakesTheWholeTextTheBuildNumber) {
  Publishing host;
  ZenxController& controller = host.AddController("1");
  controller.BiosVersion = "1.0 (abc\r\n";
  ZenxPhysicalDevice& drive = Add(controller.PhysicalDevices);
  drive.DeviceType = "Unknown";
  drive.Firmware = "1.0 (abc\r\n";
  host.Run(PublishBiosVersions, kBios);
  host.Run(PublishDiskDriveVersions, kDriveVersion);
  EXPECT_EQ(host.nameSpace.Published(kBios), Instances{Version("Zentraxis1 BIOS", "1.0 (abc", "1.0 (abc", "1")});
  EXPECT_EQ(host.nameSpace.Published(kDriveVersion),
            Instances{Version("Unknown ", "1.0 (abc", "1.0 (abc", "1-C1 CH0 I00:")});
}

TEST(PublishVersions, ATextOfBlanksAndLineEndsIsNotAVersion) {
  for (const char* const text : {"", " ", "\r\n", " \t\r\n"}) {
    Publishing host;
    ZenxController& controller = host.AddController("1");
    controller.FirmwareVersion = controller.BootBlockVersion = controller.BiosVersion = text;
    ZenxPhysicalDevice& drive = Add(controller.PhysicalDevices);
    drive.DeviceType = "Hard disk";
    drive.Firmware = text;
    host.ExpectNothing(PublishFirmwareVersions, kFirmware, {});
    host.ExpectNothing(PublishBootBlockVersions, kBootBlock, {});
    host.ExpectNothing(PublishBiosVersions, kBios, {});
    host.ExpectNothing(PublishDiskDriveVersions, kDriveVersion, {});
  }
}

// A drive of that type, with the fields of its identifier.
void AddDrive(ZenxController& controller, const std::string& type) {
  ZenxPhysicalDevice& drive = Add(controller.PhysicalDevices);
  drive.DeviceType = type;
  drive.Firmware = " 5.2-0 (12345)\r\n";
  drive.Vendor = " VENDOR\r\n";
  drive.Channel = " 1\r\n";
  drive.ScsiId = " 4\r\n";
  drive.DeviceIdSuffix = " SUFFIX\r\n";
}

TEST(PublishVersions, ADriveVersionIsCutBeforeTheBuildAndKeepsTheBlank) {
  Publishing host;
  AddDrive(host.AddController("2"), " Hard drive\r\n");
  host.Run(PublishDiskDriveVersions, kDriveVersion);
  Properties expected = Version("Zentraxis Disk", "5.2-0 ", "12345", "2-C2 CH1 I04:SUFFIX");
  expected.push_back("Manufacturer = \"VENDOR\"");
  EXPECT_EQ(host.nameSpace.Published(kDriveVersion), Instances{expected});
}

TEST(PublishVersions, TheTypeDecidesWhichPropertiesArePublished) {
  struct Case {
    const char* type;
    Properties names;
  };
  const Case cases[] = {
      {"Hard disk",                 {"Zentraxis Disk"}                         },
      {"Hard drive",                {"Zentraxis Disk"}                         },
      {"Unknown device",            {"Unknown "}                               },
      {"Enclosure services device", {"Enclosure"}                              },
      {"Unknown Hard Enclosure",    {"Zentraxis Disk", "Unknown ", "Enclosure"}},
      {"Processor device",          {}                                         },
      {"Tape",                      {}                                         },
      {"hard disk",                 {}                                         },
      {"",                          {}                                         },
  };
  for (const Case& one : cases) {
    Publishing host;
    AddDrive(host.AddController("1"), one.type);
    host.Run(PublishDiskDriveVersions, kDriveVersion);
    EXPECT_EQ(host.nameSpace.Published(kDriveVersion, "Name"), one.names) << one.type;
  }
}

TEST(PublishVersions, OnlyTheInstanceOfAHardDiskNamesAManufacturer) {
  Publishing host;
  AddDrive(host.AddController("1"), "Unknown Hard Enclosure");
  host.Run(PublishDiskDriveVersions, kDriveVersion);
  const Instances published = host.nameSpace.Published(kDriveVersion);
  ASSERT_EQ(published.size(), 3U);
  EXPECT_EQ(published[0].back(), "Manufacturer = \"VENDOR\"");
  EXPECT_EQ(published[1], Version("Unknown ", "5.2-0 ", "12345", "1-C1 CH1 I04:SUFFIX"));
  EXPECT_EQ(published[2], Version("Enclosure", "5.2-0 ", "12345", "1-C1 CH1 I04:SUFFIX"));
}

}  // namespace
