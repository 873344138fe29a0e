#include "tools/hrconf/physical_device_parser.h"

#include <gtest/gtest.h>

#include "tests/support/filled_fields.h"
#include "tests/support/label_checks.h"
#include "tests/support/tool_text.h"

namespace {

const Labels kUnknown = {
    {"State",            "State"          },
    {"Reported Channel", "ReportedChannel"},
    {"Vendor",           "Vendor"         },
    {"Model",            "Model"          },
    {"Firmware",         "Firmware"       },
};

const Labels kEnclosure = {
    {"State",            "State"          },
    {"Transfer Speed",   "TransferSpeed"  },
    {"Reported Channel", "ReportedChannel"},
    {"Vendor",           "Vendor"         },
    {"Model",            "Model"          },
    {"Firmware",         "Firmware"       },
};

const Labels kHardDrive = {
    {"State",              "State"          },
    {"Supported",          "Supported"      },
    {"Transfer Speed",     "TransferSpeed"  },
    {"Reported Channel",   "ReportedChannel"},
    {"Reported Enclosure", "Enclosure"      },
    {"Vendor",             "Vendor"         },
    {"Model",              "Model"          },
    {"Firmware",           "Firmware"       },
    {"Serial number",      "DeviceSerialNum"},
    {"World-wide name",    "WorldWideName"  },
    {"Size",               "Size"           },
    {"Write Cache",        "WriteCache"     },
    {"FRU",                "FRU"            },
    {"PFA",                "PFA"            },
};

std::set<std::string> Parsed(const std::string& lines) {
  CollectedData text(nullptr, "      Device #3\r\n" + lines);
  ZenxPhysicalDevice device(nullptr);
  hrconf::ParsePhysicalDevice(device, text, "5", "1", "Device #3\r\n");
  std::set<std::string> fields = FilledFields(device);
  EXPECT_EQ(fields.erase("ControllerNum=5"), 1u);
  EXPECT_EQ(fields.erase("Channel=1"), 1u);
  EXPECT_EQ(fields.erase("DeviceNumber=Device #3\r\n"), 1u);
  EXPECT_EQ(fields.erase("DeviceIdSuffix=Controller: 1Device #3\r\n"), 1u);
  return fields;
}

// The type line stands before the lines; the type itself is taken out of what they filled.
ParseLines WithType(const std::string& article, const std::string& type) {
  return [article, type](const std::string& lines) {
    std::set<std::string> fields = Parsed("   Device is " + article + " " + type + "\r\n" + lines + "end\r\n");
    EXPECT_EQ(fields.erase("DeviceType=" + type), 1u);
    return fields;
  };
}

TEST(HrconfPhysicalDeviceParser, ReadsTheLabelsOfAnUnknownDeviceInOrder) {
  ExpectReadInOrder(kUnknown, WithType("a", "Unknown device"));
}

TEST(HrconfPhysicalDeviceParser, ReadsTheLabelsOfAnEnclosureInOrder) {
  ExpectReadInOrder(kEnclosure, WithType("an", "Enclosure services device"));
}

TEST(HrconfPhysicalDeviceParser, ReadsTheLabelsOfAHardDriveInOrder) {
  ExpectReadInOrder(kHardDrive, WithType("a", "Hard drive"));
}

TEST(HrconfPhysicalDeviceParser, KeepsTheTypeAloneOfOtherDevices) {
  EXPECT_EQ(WithType("a", "Tape drive")(CrLf("   State : Ready\n   Vendor : V\n")), std::set<std::string>());
}

TEST(HrconfPhysicalDeviceParser, DoesNotSplitTheReportedChannel) {
  EXPECT_EQ(WithType("a", "Hard drive")(CrLf("   Reported Channel,Device : 0,3\n")),
            (std::set<std::string>{"ReportedChannel= 0,3\r\n"}));
}

TEST(HrconfPhysicalDeviceParser, LooksForTheTypeOnTheNextLineAlone) {
  EXPECT_EQ(Parsed(CrLf("\n   Device is a Hard drive\n   State : Online\nend\n")), std::set<std::string>());
}

TEST(HrconfPhysicalDeviceParser, KeepsWhatStandsBeforeTheEndOfTheText) {
  for (std::size_t end = 0; end <= kHardDrive.size(); ++end) {
    std::string lines = "   Device is a Hard drive\r\n";
    for (std::size_t row = 0; row < end; ++row) lines += LabelLine(kHardDrive, row);
    std::set<std::string> expected = FilledBy(kHardDrive, [&](std::size_t row) { return row < end; });
    expected.insert("DeviceType=Hard drive");
    EXPECT_EQ(Parsed(lines + "   PF"), expected) << end;
  }
  EXPECT_EQ(Parsed(""), std::set<std::string>());
}

TEST(HrconfPhysicalDeviceParser, PutsNothingBetweenChannelAndNameInTheIdentifier) {
  CollectedData text(nullptr, "Device #3\r\n");
  ZenxPhysicalDevice device(nullptr);
  device.DeviceIdSuffix = "before ";
  hrconf::ParsePhysicalDevice(device, text, "5", "0", "Device #3");
  EXPECT_EQ(device.DeviceIdSuffix, "before Controller: 0Device #3");
}

}  // namespace
