#include "tools/qcmdrun/physical_device_parser.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/label_lines.h"
#include "tests/support/recording_log.h"
#include "tests/support/tool_text.h"
#include "tools/qcmdrun/labels.h"

namespace {

struct Block {
  ZenxPhysicalDevice device;
  std::string currentLine;  // after the block
};

Block Read(const std::string& lines, HostHandle log = nullptr) {
  CollectedData text(log, "   Target on SCSI ID 3\r\n" + lines + "next\r\nlast\r\n");
  ZenxPhysicalDevice device(log);
  qcmdrun::ParsePhysicalDevice(device, text, "5", "2");
  return {device, std::string(text.CurrentLine())};
}

ZenxPhysicalDevice WithIdentifier(const std::string& type, const std::string& identifier, HostHandle log = nullptr) {
  return Read("   Device is a " + type + "\r\n   Device ID :" + identifier + "\n", log).device;
}

TEST(QcmdrunPhysicalDeviceParser, ReadsControllerChannelAndEveryLabel) {
  const ZenxPhysicalDevice device =
      Read("   Device is a Changer\r\n" + LabelLines(qcmdrun::kDevice) + "   FRU part number : 7\r\n").device;
  EXPECT_EQ(device.ControllerNum, "5");
  EXPECT_EQ(device.Channel, "2");
  ExpectFilled(device, qcmdrun::kDevice, std::size(qcmdrun::kDevice));
  EXPECT_EQ(device.FRU, " 7\r\n");
}

TEST(QcmdrunPhysicalDeviceParser, EndsOnTheLastLineThatBelongsToTheDevice) {
  EXPECT_EQ(Read("   Device is a Changer\r\n   SCSI ID : 3\r\n").currentLine, "   SCSI ID : 3\r\n");
  EXPECT_EQ(Read("   Device is a Hard disk\r\n   FRU part number : 7\r\n").currentLine, "   FRU part number : 7\r\n");
}

TEST(QcmdrunPhysicalDeviceParser, KeepsTheTypeAsItFollowsTheLabel) {
  EXPECT_EQ(Read("   Device is a Hard disk\r\n").device.DeviceType, " Hard disk\r\n");
  EXPECT_EQ(Read("   Device is an Optical drive\r\n").device.DeviceType, "n Optical drive\r\n");
}

TEST(QcmdrunPhysicalDeviceParser, UsesUpTheLineAfterTheTargetAlsoWithoutADeviceType) {
  const ZenxPhysicalDevice device = Read("   SCSI ID : 3\r\n   State : Online\r\n").device;
  EXPECT_EQ(device.DeviceType, "");
  EXPECT_EQ(device.ScsiId, "");
  EXPECT_EQ(device.State, " Online\r\n");
}

TEST(QcmdrunPhysicalDeviceParser, CutsModelCodeFirmwareAndSerialNumberOutOfAHardDisksIdentifier) {
  const ZenxPhysicalDevice device = WithIdentifier("Hard disk", " TALVERA T36LW10 S96H8B01234\r");
  EXPECT_EQ(device.DeviceIdSuffix, " TALVERA T36LW10 S96H8B01234\r\n");
  EXPECT_EQ(device.Model, " TALVERA T36LW10");
  EXPECT_EQ(device.DeviceCode, "T36LW10 ");
  EXPECT_EQ(device.Firmware, "S96H");
  EXPECT_EQ(device.DeviceSerialNum, "H8B01234");
}

// Blank and line end count: the length is that of the untrimmed value.
TEST(QcmdrunPhysicalDeviceParser, ReadsOnlyTheModelFromAnIdentifierOf27Characters) {
  const ZenxPhysicalDevice device = WithIdentifier("Hard disk", " TALVERA T36LW10 S96H8B012");
  ASSERT_EQ(device.DeviceIdSuffix.size(), 27u);
  EXPECT_EQ(device.Model, " TALVERA T36LW10");
  EXPECT_EQ(device.DeviceCode, "");
  EXPECT_EQ(device.Firmware, "");
  EXPECT_EQ(device.DeviceSerialNum, "");
}

TEST(QcmdrunPhysicalDeviceParser, CutsTheLineEndIntoTheSerialNumberOfAnIdentifierOf28Characters) {
  const ZenxPhysicalDevice device = WithIdentifier("Hard disk", " TALVERA T36LW10 S96H8B0123");
  ASSERT_EQ(device.DeviceIdSuffix.size(), 28u);
  EXPECT_EQ(device.Firmware, "S96H");
  EXPECT_EQ(device.DeviceSerialNum, "H8B0123\n");
}

TEST(QcmdrunPhysicalDeviceParser, TakesAsMuchOfTheModelAsAShortIdentifierHas) {
  EXPECT_EQ(WithIdentifier("Hard disk", " TAL\r").Model, " TAL\r\n");
  EXPECT_EQ(Read("   Device is a Hard disk\r\n").device.Model, "");
}

// Its type contains both words: the firmware that the tape's step cut out does not belong to a disk.
TEST(QcmdrunPhysicalDeviceParser, ClearsTheFirmwareOfATapeThatIsAHardDiskWithAShortIdentifier) {
  RecordingLog log;
  const ZenxPhysicalDevice device = WithIdentifier("Tape and Hard disk", " ORBITEK DAT72LP  A119\r", &log);
  EXPECT_EQ(device.Model, " ORBITEK DAT72LP");
  EXPECT_EQ(device.Firmware, "");
  EXPECT_EQ(device.DeviceSerialNum, "");
}

TEST(QcmdrunPhysicalDeviceParser, TakesATapesFirmwareFromTheLastFourCharactersAndLogsIt) {
  RecordingLog log;
  const ZenxPhysicalDevice device = WithIdentifier("Tape", " ORBITEK DAT72LP  A119\r", &log);
  EXPECT_EQ(device.Model, " ORBITEK DAT72LP  A119\r\n");
  EXPECT_EQ(device.Firmware, "A119");
  EXPECT_EQ(log.entries, (std::vector<LogEntry>{
                             {3, "We get one tape drive, and it's firmware version is:A119"}
  }));
}

TEST(QcmdrunPhysicalDeviceParser, TakesTheFirmwareOfAShortTapeIdentifierAsFarAsItGoes) {
  struct Case {
    std::string identifier;
    std::string firmware;
  };
  const std::vector<Case> cases = {
      {" A11\r",   " A11"},
      {"A11\r",    "A11" },
      {"1\r",      "1"   },
      {"\r",       ""    },
      {"",         ""    },
      {" 2 119\r", " 119"},
  };
  for (const Case& tapeCase : cases) {
    SCOPED_TRACE("[" + tapeCase.identifier + "]");
    RecordingLog log;
    EXPECT_EQ(WithIdentifier("Tape", tapeCase.identifier, &log).Firmware, tapeCase.firmware);
  }
}

TEST(QcmdrunPhysicalDeviceParser, CutsNothingOutOfTheIdentifierOfOtherDevices) {
  const ZenxPhysicalDevice device = WithIdentifier("Processor device", " KVR     SAFTE21 0203 AND FAR LONGER\r");
  EXPECT_EQ(device.Model, "");
  EXPECT_EQ(device.Firmware, "");
  EXPECT_EQ(device.DeviceCode, "");
  EXPECT_EQ(device.DeviceSerialNum, "");
}

TEST(QcmdrunPhysicalDeviceParser, FailsIfTheTextEndsInsideTheBlock) {
  for (std::size_t count = 0; count <= std::size(qcmdrun::kDevice); ++count) {
    CollectedData text(nullptr, "Target\r\nDevice is a Changer\r\n" + LabelLines(qcmdrun::kDevice, count));
    ZenxPhysicalDevice device(nullptr);
    EXPECT_THROW(qcmdrun::ParsePhysicalDevice(device, text, "1", "1"), std::out_of_range) << count;
  }
}

}  // namespace
