#include "tools/arcconf/physical_device_parser.h"

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
    {"Enclosure ID",     "EnclosureId"    },
    {"Type",             "Type"           },
    {"Vendor",           "Vendor"         },
    {"Model",            "Model"          },
    {"Firmware",         "Firmware"       },
    {"Temperature",      "Temperature"    },
};

const Labels kHardDrive = {
    {"State",              "State"           },
    {"Supported",          "Supported"       },
    {"Transfer Speed",     "TransferSpeed"   },
    {"Reported Channel",   "ReportedChannel" },
    {"Reported Enclosure", "Enclosure"       },
    {"Reported Location",  "ReportedLocation"},
    {"Reported ESD",       "ReportedESD"     },
    {"Vendor",             "Vendor"          },
    {"Model",              "Model"           },
    {"Firmware",           "Firmware"        },
    {"Serial",             "DeviceSerialNum" },
    {"World-wide name",    "WorldWideName"   },
    {"Size",               "Size"            },
    {"Write Cache",        "WriteCache"      },
    {"FRU",                "FRU"             },
    {"PFA",                "PFA"             },
};

ZenxPhysicalDevice Parse(const std::string& lines) {
  CollectedData text(nullptr, "      Device #3\r\n" + lines);
  ZenxPhysicalDevice device(nullptr);
  arcconf::ParsePhysicalDevice(device, text, "5", "", "Device #3\r\n");
  return device;
}

// What the labels filled. Channel and ScsiId are pieces of the reported channel and have tests of their own.
std::set<std::string> FilledByLabels(const ZenxPhysicalDevice& device) {
  std::set<std::string> fields = FilledFields(device);
  EXPECT_EQ(fields.erase("ControllerNum=5"), 1u);
  EXPECT_EQ(fields.erase("DeviceNumber=Device #3\r\n"), 1u);
  EXPECT_EQ(fields.erase("DeviceIdSuffix=Controller: Device #3\r\n"), 1u);
  fields.erase("DeviceType=" + device.DeviceType);
  fields.erase("Channel=" + device.Channel);
  return fields;
}

ParseLines WithType(const std::string& typeLine) {
  return [typeLine](const std::string& lines) { return FilledByLabels(Parse(typeLine + "\r\n" + lines + "end\r\n")); };
}

std::string TypeOf(const std::string& line) { return Parse(line + "\r\nend\r\n").DeviceType; }

TEST(ArcconfPhysicalDeviceParser, ReadsTheLabelsOfAnUnknownDeviceInOrder) {
  ExpectReadInOrder(kUnknown, WithType("         Device is a Unknown device"));
}

TEST(ArcconfPhysicalDeviceParser, ReadsTheLabelsOfAnEnclosureInOrder) {
  ExpectReadInOrder(kEnclosure, WithType("         Device is an Enclosure services device"));
}

TEST(ArcconfPhysicalDeviceParser, ReadsTheLabelsOfAHardDriveInOrder) {
  ExpectReadInOrder(kHardDrive, WithType("         Device is a Hard drive"));
}

TEST(ArcconfPhysicalDeviceParser, CutsTheTypeFromItsLine) {
  EXPECT_EQ(TypeOf("   Device is a Hard drive"), "Hard drive");
  EXPECT_EQ(TypeOf("   Device is an Enclosure services device"), "Enclosure services device");
  EXPECT_EQ(TypeOf("   Device is a"), "");
  EXPECT_EQ(TypeOf("   Device is missing"), "");
  EXPECT_EQ(TypeOf(""), "");
}

TEST(ArcconfPhysicalDeviceParser, ChoosesTheLabelsByTheFirstTypeThatFits) {
  const std::string lines = CrLf("   State : Online\n   Transfer Speed : 320\n   Enclosure ID : 0\n");
  const std::set<std::string> ofUnknown = {"State= Online\r\n"};
  const std::set<std::string> ofHardDrive = {"State= Online\r\n", "TransferSpeed= 320\r\n"};
  const std::set<std::string> ofEnclosure = {"State= Online\r\n", "TransferSpeed= 320\r\n", "EnclosureId= 0\r\n"};
  struct Case {
    const char* type;
    std::set<std::string> fields;
  };
  const Case cases[] = {
      {"an Unknown Enclosure Hard drive", ofUnknown  },
      {"an Enclosure Hard drive",         ofEnclosure},
      {"a Hard drive",                    ofHardDrive},
      {"a hard drive",                    {}         },
      {"a Hard disk",                     {}         },
  };
  for (const auto& [type, fields] : cases)
    EXPECT_EQ(WithType(std::string("   Device is ") + type)(lines), fields) << type;
}

TEST(ArcconfPhysicalDeviceParser, KeepsOnlyTypeAndIdentifierOfOtherDevicesSuchAsATape) {
  const ZenxPhysicalDevice tape =
      Parse(CrLf("   Device is a Tape drive\n   State : Ready\n   Reported Channel : 0,6\n   Vendor : V\n"));
  EXPECT_EQ(FilledFields(tape),
            (std::set<std::string>{"ControllerNum=5", "DeviceNumber=Device #3\r\n", "DeviceType=Tape drive",
                                   "DeviceIdSuffix=Controller: Device #3\r\n"}));
}

TEST(ArcconfPhysicalDeviceParser, StaysOnALineThatTellsNoType) {
  CollectedData text(nullptr, CrLf("Device #3\n   State : Online\n   Vendor : V\n"));
  ZenxPhysicalDevice device(nullptr);
  arcconf::ParsePhysicalDevice(device, text, "5", "", "Device #3\r\n");
  EXPECT_EQ(device.DeviceType, "");
  EXPECT_EQ(device.State, "");
  EXPECT_EQ(text.CurrentLine(), "   State : Online\r\n");
}

TEST(ArcconfPhysicalDeviceParser, PutsWhatASpareIsForBehindItsState) {
  const std::string type = "   Device is a Hard drive\n";
  const auto stateOf = [&](const std::string& lines) { return Parse(CrLf(type + lines + "end\n")).State; };
  EXPECT_EQ(stateOf("   State : Hot Spare \n   Assigned Spare for :  Logical drive 1\n"),
            " Hot Spare for Logical drive 1\r\n");
  EXPECT_EQ(stateOf("   State : Hot Spare\n   Assigned Spare for\n"), " Hot Spare\r\n");
  EXPECT_EQ(stateOf("   Assigned Spare for : Logical drive 1\n"), " for Logical drive 1\r\n");
}

TEST(ArcconfPhysicalDeviceParser, ReadsOnBehindASpareAssignmentAndWithoutOne) {
  const std::string type = "   Device is a Hard drive\n   State : Hot Spare\n";
  const std::string rest = "   Supported : Yes\nend\n";
  EXPECT_EQ(Parse(CrLf(type + rest)).Supported, " Yes\r\n");
  EXPECT_EQ(Parse(CrLf(type + "   Assigned Spare for : 1\n" + rest)).Supported, " Yes\r\n");
  EXPECT_EQ(Parse(CrLf(type + "   Assigned Spare for\n" + rest)).Supported, "");
}

TEST(ArcconfPhysicalDeviceParser, ReadsTheTemperatureWithAndWithoutTheHeadOfTheEnclosuresStatus) {
  const std::string type = "   Device is an Enclosure services device\n   Firmware : 1.06\n";
  const std::string head = "   Status of Enclosure services device\n";
  const std::string temperature = "   Temperature : Normal\n";
  EXPECT_EQ(Parse(CrLf(type + head + temperature)).Temperature, " Normal\r\n");
  EXPECT_EQ(Parse(CrLf(type + temperature)).Temperature, " Normal\r\n");
  EXPECT_EQ(Parse(CrLf(type + head + head + temperature)).Temperature, "");
}

TEST(ArcconfPhysicalDeviceParser, SplitsTheReportedChannelOfDrivesAndEnclosures) {
  struct Case {
    const char* name;
    const char* type;
    std::string value;
    const char* channel;
    const char* scsiId;
  };
  const Case cases[] = {
      {"a drive",            "a Hard drive",    " : 0,3\r\n",     "0",  "3\r"},
      {"line feed alone",    "a Hard drive",    " : 0,3\n",       "0",  "3"  },
      {"an enclosure",       "an Enclosure",    " : 2,0\r\n",     "2",  "0\r"},
      {"blanks around",      "a Hard drive",    " : \t 0 , 3 \n", "0 ", " 3" },
      {"two commas",         "a Hard drive",    " : 0,3,1\n",     "0",  "3,1"},
      {"no comma",           "a Hard drive",    " : 12\n",        "12", ""   },
      {"nothing but blanks", "a Hard drive",    " :  \n",         "",   ""   },
      {"a comma alone",      "a Hard drive",    " : ,\n",         "",   ""   },
      {"an unknown device",  "a Unknown thing", " : 0,3\r\n",     "",   ""   },
  };
  for (const auto& [name, type, value, channel, scsiId] : cases) {
    const ZenxPhysicalDevice device =
        Parse(std::string("   Device is ") + type + "\r\n   Reported Channel,Device" + value + "end\n");
    EXPECT_EQ(device.Channel, channel) << name;
    EXPECT_EQ(device.ScsiId, scsiId) << name;
    EXPECT_EQ(device.ReportedChannel, value.substr(2)) << name;
  }
}

TEST(ArcconfPhysicalDeviceParser, EndsTheIdentifierWithTheTextsThatItIsGiven) {
  CollectedData text(nullptr, "Device #3\r\n");
  ZenxPhysicalDevice device(nullptr);
  device.DeviceIdSuffix = "before ";
  arcconf::ParsePhysicalDevice(device, text, "5", "1", "Device #3");
  EXPECT_EQ(device.DeviceIdSuffix, "before Controller: 1Device #3");
}

TEST(ArcconfPhysicalDeviceParser, KeepsWhatStandsBeforeTheEndOfTheText) {
  for (std::size_t end = 0; end <= kHardDrive.size(); ++end) {
    std::string lines = "   Device is a Hard drive\r\n";
    for (std::size_t row = 0; row < end; ++row) lines += LabelLine(kHardDrive, row);
    const ZenxPhysicalDevice device = Parse(lines + "   PF");
    EXPECT_EQ(FilledByLabels(device), FilledBy(kHardDrive, [&](std::size_t row) { return row < end; })) << end;
    EXPECT_EQ(device.Channel, end > 3 ? "v3\r" : "") << end;
  }
  EXPECT_EQ(FilledByLabels(Parse("")), std::set<std::string>());
}

}  // namespace
