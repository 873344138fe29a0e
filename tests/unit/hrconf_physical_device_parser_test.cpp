#include "tools/hrconf/physical_device_parser.h"

#include <gtest/gtest.h>

#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/hrconf/labels.h"

namespace {

using hrconf::kHardDrive;

ZenxPhysicalDevice Parsed(const std::string& lines) {
  CollectedData text(nullptr, "      Device #3\r\n" + lines);
  ZenxPhysicalDevice device(nullptr);
  hrconf::ParsePhysicalDevice(device, text, "5", "1", "Device #3\r\n");
  EXPECT_EQ(device.ControllerNum, "5");
  EXPECT_EQ(device.Channel, "1");
  EXPECT_EQ(device.DeviceNumber, "Device #3\r\n");
  EXPECT_EQ(device.DeviceIdSuffix, "Controller: 1Device #3\r\n");
  return device;
}

ZenxPhysicalDevice OfType(const std::string& type, const std::string& lines) {
  return Parsed("   Device is " + type + "\r\n" + lines + "end\r\n");
}

TEST(HrconfPhysicalDeviceParser, ReadsTheLabelsOfItsType) {
  const auto expectRead = [](const std::string& type, const auto& table) {
    ExpectFilled(OfType(type, LabelLines(table)), table, std::size(table));
  };
  expectRead("a Unknown device", hrconf::kUnknown);
  expectRead("an Enclosure services device", hrconf::kEnclosure);
  expectRead("a Hard drive", kHardDrive);
}

TEST(HrconfPhysicalDeviceParser, KeepsOnlyTheTypeOfOtherDevices) {
  const ZenxPhysicalDevice tape = OfType("a Tape drive", LabelLines(kHardDrive));
  EXPECT_EQ(tape.DeviceType, "Tape drive");
  ExpectFilled(tape, kHardDrive, 0);
}

TEST(HrconfPhysicalDeviceParser, DoesNotSplitTheReportedChannel) {
  const ZenxPhysicalDevice drive = OfType("a Hard drive", CrLf("   Reported Channel,Device : 0,3\n"));
  EXPECT_EQ(drive.ReportedChannel, " 0,3\r\n");
  EXPECT_EQ(drive.ScsiId, "");
}

TEST(HrconfPhysicalDeviceParser, LooksForTheTypeOnlyOnTheNextLine) {
  ExpectFilled(Parsed(CrLf("\n   Device is a Hard drive\n   State : Online\nend\n")), kHardDrive, 0);
}

TEST(HrconfPhysicalDeviceParser, KeepsWhatIsBeforeTheEndOfTheText) {
  for (std::size_t count = 0; count <= std::size(kHardDrive); ++count) {
    SCOPED_TRACE(count);
    ExpectFilled(Parsed("   Device is a Hard drive\r\n" + LabelLines(kHardDrive, count) + "   PF"), kHardDrive, count);
  }
  EXPECT_EQ(Parsed("").DeviceType, "");
}

TEST(HrconfPhysicalDeviceParser, PutsNothingBetweenChannelAndNameInTheIdentifier) {
  CollectedData text(nullptr, "Device #3\r\n");
  ZenxPhysicalDevice device(nullptr);
  device.DeviceIdSuffix = "before ";
  hrconf::ParsePhysicalDevice(device, text, "5", "0", "Device #3");
  EXPECT_EQ(device.DeviceIdSuffix, "before Controller: 0Device #3");
}

}  // namespace
