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
    const char* name;
    const char* channel;
    const char* scsiId;
    const char* suffix;
    const char* expected;
  };
  constexpr Case kCases[] = {
      {"channel text 0 and target text 3 on controller 1", "0",           "3",            "SN1",                    "C1 CH0 I03:SN1"               },
      {"a target text that is not numeric is I00",         "0",           "none",         "SN1",                    "C1 CH0 I00:SN1"               },
      {"two digits stay two",                              "1",           "15",           "",                       "C1 CH1 I15:"                  },
      {"three digits stay three",                          "2",           "128",          "",                       "C1 CH2 I128:"                 },
      {"the texts as cut from the tool's lines",           " 1\r\n",      " 7\r\n",       " Controller: 1 0,7\r\n",
       "C1 CH1 I07:Controller: 1 0,7"                                                                                                              },
      {"what follows the digits is ignored",               "1 (SAS)",     "4,0",          "",                       "C1 CH1 I04:"                  },
      {"no texts at all",                                  "",            "",             "",                       "C1 CH0 I00:"                  },
      {"numbers beyond an int",                            "99999999999", "-99999999999", "",                       "C1 CH2147483647 I-2147483648:"},
  };
  ZenxController controller(nullptr);
  controller.ControllerNum = "1";
  for (const Case& one : kCases) {
    ZenxPhysicalDevice drive(nullptr);
    drive.Channel = one.channel;
    drive.ScsiId = one.scsiId;
    drive.DeviceIdSuffix = one.suffix;
    EXPECT_EQ(DiskDriveId(controller, drive), one.expected) << one.name;
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
