#include "publish/identifiers.h"

#include <gtest/gtest.h>

namespace {

TEST(Identifiers, NameAControllerAndItsLogicalDisks) {
  ZenxController controller(nullptr);
  ZenxLogicalDevice disk(nullptr);
  controller.ControllerNum = "1";
  disk.LogicalDriveNum = " 2\r\n";
  EXPECT_EQ(ControllerId(controller), "Zentraxis1");
  EXPECT_EQ(LogicalDiskId(controller, disk), "Zentraxis1LD2");
}

TEST(Identifiers, NameADriveByChannelTargetAndItsOwnEnding) {
  struct Case {
    const char* channel;
    const char* scsiId;
    const char* suffix;
    const char* expected;
  };
  constexpr Case kCases[] = {
      {"0",           "3",            "SN1",                    "C1 CH0 I03:SN1"               },
      {"0",           "none",         "SN1",                    "C1 CH0 I00:SN1"               },
      {"1",           "15",           "",                       "C1 CH1 I15:"                  },
      {"2",           "128",          "",                       "C1 CH2 I128:"                 },
      {" 1\r\n",      " 7\r\n",       " Controller: 1 0,7\r\n", "C1 CH1 I07:Controller: 1 0,7" },
      {"1 (SAS)",     "4,0",          "",                       "C1 CH1 I04:"                  },
      {"",            "",             "",                       "C1 CH0 I00:"                  },
      {"99999999999", "-99999999999", "",                       "C1 CH2147483647 I-2147483648:"},
  };
  ZenxController controller(nullptr);
  controller.ControllerNum = "1";
  for (const Case& one : kCases) {
    ZenxPhysicalDevice drive(nullptr);
    drive.Channel = one.channel;
    drive.ScsiId = one.scsiId;
    drive.DeviceIdSuffix = one.suffix;
    EXPECT_EQ(DiskDriveId(controller, drive), one.expected);
  }
}

TEST(Identifiers, NameSoftware) {
  EXPECT_EQ(FirmwareName("2"), "Zentraxis2 Firmware");
  EXPECT_EQ(BootBlockName("2"), "Zentraxis Boot Block");
  EXPECT_EQ(BiosName("2"), "Zentraxis2 BIOS");
  EXPECT_EQ(DriveSoftwareId("2", "C2 CH0 I03:SN1"), "2-C2 CH0 I03:SN1");
}

TEST(Identifiers, NameStatisticsByTheTextsAsHeld) {
  EXPECT_EQ(BadStripeId("1", "2"), "Zentraxis:1LD2");
  EXPECT_EQ(DeviceDataId("1", "0", "3"), "Zentraxis:1C0S3");
  EXPECT_EQ(DeviceDataId("1", "0 ", ""), "Zentraxis:1C0 S");
}

}  // namespace
