#include "tools/arcconf/physical_device_parser.h"

#include <gtest/gtest.h>

#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/arcconf/labels.h"

namespace {

ZenxPhysicalDevice Parse(const std::string& lines) {
  CollectedData text(nullptr, "      Device #3\r\n" + lines);
  ZenxPhysicalDevice device(nullptr);
  arcconf::ParsePhysicalDevice(device, text, "5", "", "Device #3\r\n");
  return device;
}

ZenxPhysicalDevice OfType(const std::string& type, const std::string& lines) {
  return Parse("   Device is " + type + "\r\n" + lines + "end\r\n");
}

std::string TypeOf(const std::string& line) { return Parse(line + "\r\nend\r\n").DeviceType; }

TEST(ArcconfPhysicalDeviceParser, ReadsTheLabelsOfItsType) {
  const auto expectRead = [](const std::string& type, const auto& table) {
    ExpectFilled(OfType(type, LabelLines(table)), table, std::size(table));
  };
  expectRead("a Unknown device", arcconf::kUnknown);
  expectRead("an Enclosure services device", arcconf::kEnclosure);
  expectRead("a Hard drive", arcconf::kHardDrive);
}

// One label on each line: after a row out of order nothing is found.
TEST(ArcconfPhysicalDeviceParser, ReadsTheLabelsOfAHardDriveAsTheToolOrdersThem) {
  const ZenxPhysicalDevice device = OfType(
      "a Hard drive", CrLf("   State : Online\n   Supported : Yes\n   Transfer Speed : SAS 3.0 Gb/s\n"
                           "   Reported Channel : 0,8\n   Vendor : NORDVIK\n   Model : NV73-15SAS\n"
                           "   Firmware : N4K2\n   Serial number : NV3LE77Q2H\n   Size : 70007 MB\n   PFA : No\n"));
  EXPECT_EQ(Trimmed(device.Vendor), "NORDVIK");
  EXPECT_EQ(Trimmed(device.Model), "NV73-15SAS");
  EXPECT_EQ(Trimmed(device.DeviceSerialNum), "NV3LE77Q2H");
  EXPECT_EQ(Trimmed(device.PFA), "No");
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
  struct Case {
    const char* type;
    const char* fields;
  };
  const Case cases[] = {
      {"an Unknown Enclosure Hard drive", "Online||"    },
      {"an Enclosure Hard drive",         "Online|320|0"},
      {"a Hard drive",                    "Online|320|" },
      {"a hard drive",                    "||"          },
      {"a Tape drive",                    "||"          },
  };
  for (const auto& [type, fields] : cases) {
    const ZenxPhysicalDevice device = OfType(type, lines);
    std::string read(Trimmed(device.State));
    read.append("|").append(Trimmed(device.TransferSpeed)).append("|").append(Trimmed(device.EnclosureId));
    EXPECT_EQ(read, fields) << type;
  }
}

TEST(ArcconfPhysicalDeviceParser, StaysOnALineWithoutAType) {
  CollectedData text(nullptr, CrLf("Device #3\n   State : Online\n   Vendor : V\n"));
  ZenxPhysicalDevice device(nullptr);
  arcconf::ParsePhysicalDevice(device, text, "5", "", "Device #3\r\n");
  EXPECT_EQ(device.DeviceType, "");
  EXPECT_EQ(device.State, "");
  EXPECT_EQ(text.CurrentLine(), "   State : Online\r\n");
}

TEST(ArcconfPhysicalDeviceParser, AppendsTheAssignmentOfASpareToItsState) {
  const std::string type = "   Device is a Hard drive\n";
  const auto stateOf = [&](const std::string& lines) { return Parse(CrLf(type + lines + "end\n")).State; };
  EXPECT_EQ(stateOf("   State : Hot Spare \n   Assigned Spare for :  Logical drive 1\n"),
            " Hot Spare for Logical drive 1\r\n");
  EXPECT_EQ(stateOf("   State : Hot Spare\n   Assigned Spare for\n"), " Hot Spare\r\n");
  EXPECT_EQ(stateOf("   Assigned Spare for : Logical drive 1\n"), " for Logical drive 1\r\n");
}

TEST(ArcconfPhysicalDeviceParser, ContinuesAfterASpareAssignmentAndWithoutOne) {
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

TEST(ArcconfPhysicalDeviceParser, KeepsWhatIsBeforeTheEndOfTheText) {
  for (std::size_t count = 0; count <= std::size(arcconf::kHardDrive); ++count) {
    SCOPED_TRACE(count);
    const ZenxPhysicalDevice device =
        Parse("   Device is a Hard drive\r\n" + LabelLines(arcconf::kHardDrive, count) + "   PF");
    ExpectFilled(device, arcconf::kHardDrive, count);
    EXPECT_EQ(device.Channel, count > 2 ? "v2\r" : "");
  }
  EXPECT_EQ(Parse("").DeviceType, "");
}

}  // namespace
