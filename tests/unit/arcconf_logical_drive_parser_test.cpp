#include "tools/arcconf/logical_drive_parser.h"

#include <gtest/gtest.h>

#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/arcconf/labels.h"

namespace {

using arcconf::kLogicalDrive;

ZenxLogicalDevice Parsed(const std::string& lines) {
  CollectedData text(nullptr, "Logical drive number 2\r\n" + lines);
  ZenxLogicalDevice drive(nullptr);
  arcconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(drive.ControllerNum, "5");
  EXPECT_EQ(drive.LogicalDriveNum, "2");
  return drive;
}

TEST(ArcconfLogicalDriveParser, FillsTheSizeAndTheLaterLabelsWithoutAStatusOfRaid5ee) {
  const ZenxLogicalDevice drive = Parsed(CrLf("   Status of logical drive : Optimal\n   Size : 1 MB\n\n"));
  EXPECT_EQ(drive.LogicalDriveStatus, " Optimal\r\n");
  EXPECT_EQ(drive.Raid5EEStatus, "");
  EXPECT_EQ(drive.Size, " 1 MB\r\n");
}

TEST(ArcconfLogicalDriveParser, StaysOnTheLastLineThatItRead) {
  CollectedData text(nullptr, CrLf("Logical drive number 2\n   Size : 100 MB\n\nLogical drive number 3\n"));
  ZenxLogicalDevice drive(nullptr);
  arcconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(text.CurrentLine(), "   Size : 100 MB\r\n");
}

TEST(ArcconfLogicalDriveParser, LeavesAStripeOrderAfterTheDefunctSegmentsToOthers) {
  CollectedData text(nullptr, CrLf("Logical drive number 2\n   Defunct segments : No\n   Stripe order : 0,1\n\n"));
  ZenxLogicalDevice drive(nullptr);
  arcconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(drive.StripeOrder, "");
  EXPECT_EQ(text.NextLine(), "   Stripe order : 0,1\r\n");
}

TEST(ArcconfLogicalDriveParser, KeepsWhatIsBeforeTheEndOfTheText) {
  for (std::size_t count = 0; count <= std::size(kLogicalDrive); ++count) {
    SCOPED_TRACE(count);
    ExpectFilled(Parsed(LabelLines(kLogicalDrive, count)), kLogicalDrive, count);
    ExpectFilled(Parsed(LabelLines(kLogicalDrive, count) + "   Siz"), kLogicalDrive, count);
  }
}

}  // namespace
