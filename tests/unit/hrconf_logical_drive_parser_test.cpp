#include "tools/hrconf/logical_drive_parser.h"

#include <gtest/gtest.h>

#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/hrconf/labels.h"

namespace {

using hrconf::kLogicalDrive;

ZenxLogicalDevice Parsed(const std::string& lines) {
  CollectedData text(nullptr, "Logical drive number 2\r\n" + lines);
  ZenxLogicalDevice drive(nullptr);
  hrconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(drive.ControllerNum, "5");
  EXPECT_EQ(drive.LogicalDriveNum, "2");
  return drive;
}

TEST(HrconfLogicalDriveParser, LosesTheWriteCacheStatusWithTheSizeAndNothingElse) {
  const ZenxLogicalDevice drive =
      Parsed(CrLf("   RAID level : 1\n   Write cache status : On\n   Number of chunks : 2\nend\n"));
  EXPECT_EQ(drive.RaidLevel, " 1\r\n");
  EXPECT_EQ(drive.WriteCacheStatus, "");
  EXPECT_EQ(drive.NumOfChunks, " 2\r\n");
}

TEST(HrconfLogicalDriveParser, StaysOnTheLastLineThatItRead) {
  CollectedData text(nullptr, CrLf("Logical drive number 2\n   Size : 1\n   Number of chunks : 2\n\nend\n"));
  ZenxLogicalDevice drive(nullptr);
  hrconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(text.CurrentLine(), "   Number of chunks : 2\r\n");
}

TEST(HrconfLogicalDriveParser, KeepsWhatIsBeforeTheEndOfTheText) {
  for (std::size_t count = 0; count <= std::size(kLogicalDrive); ++count) {
    SCOPED_TRACE(count);
    ExpectFilled(Parsed(LabelLines(kLogicalDrive, count) + "   Dri"), kLogicalDrive, count);
  }
}

}  // namespace
