#include "tools/qcmdrun/logical_drive_parser.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/label_lines.h"
#include "tests/support/tool_text.h"
#include "tools/qcmdrun/labels.h"

namespace {

using qcmdrun::kLogicalDrive;

struct Block {
  ZenxLogicalDevice drive;
  std::string currentLine;  // after the block
};

Block Read(const std::string& lines) {
  CollectedData text(nullptr, CrLf("Logical drive number 7\n") + lines + CrLf("next\nlast\n"));
  ZenxLogicalDevice drive(nullptr);
  qcmdrun::ParseLogicalDrive(drive, text, "3", "7");
  EXPECT_EQ(drive.ControllerNum, "3");
  EXPECT_EQ(drive.LogicalDriveNum, "7");
  return {drive, std::string(text.CurrentLine())};
}

TEST(QcmdrunLogicalDriveParser, ReadsEveryLabelAndStopsOnTheLastLine) {
  const Block block = Read(LabelLines(kLogicalDrive));
  ExpectFilled(block.drive, kLogicalDrive, std::size(kLogicalDrive));
  EXPECT_EQ(block.currentLine, "   Part of merge group : v9\r\n");
}

TEST(QcmdrunLogicalDriveParser, FillsTheRaidLevelFromTheLineAfterTheStatusWithoutAdditionalInformation) {
  const ZenxLogicalDevice drive = Read(CrLf("Status of logical drive : a\nRAID level : 5\nx\nx\nx\nx\nx\n")).drive;
  EXPECT_EQ(drive.LogicalDriveStatus, " a\r\n");
  EXPECT_EQ(drive.AdditionalInformation, "");
  EXPECT_EQ(drive.RaidLevel, " 5\r\n");
}

TEST(QcmdrunLogicalDriveParser, StaysOnTheArrayLineWithoutAMergeGroup) {
  const Block block = Read(LabelLines(kLogicalDrive, 9));
  ExpectFilled(block.drive, kLogicalDrive, 9);
  EXPECT_EQ(block.currentLine, "   Part of array : v8\r\n");
}

TEST(QcmdrunLogicalDriveParser, LosesTheAdditionalInformationToAMissingStatus) {
  const ZenxLogicalDevice drive = Read(CrLf("Additional information : a\nRAID level : 5\n") + "x\nx\nx\nx\nx\n").drive;
  EXPECT_EQ(drive.AdditionalInformation, "");
  EXPECT_EQ(drive.RaidLevel, " 5\r\n");
}

// Each label after the missing one consumes the line of the next label.
TEST(QcmdrunLogicalDriveParser, LosesEveryLineAfterAMissingOneThatIsNotOptional) {
  for (std::size_t missing = 2; missing < std::size(kLogicalDrive) - 1; ++missing) {
    SCOPED_TRACE(kLogicalDrive[missing].label);
    std::string lines = LabelLines(kLogicalDrive);
    const std::size_t begin = lines.find(kLogicalDrive[missing].label) - 3;
    lines.erase(begin, lines.find('\n', begin) + 1 - begin);
    ExpectFilled(Read(lines).drive, kLogicalDrive, missing);
  }
}

TEST(QcmdrunLogicalDriveParser, FailsIfTheTextEndsInsideTheBlock) {
  for (std::size_t count = 0; count < std::size(kLogicalDrive) - 1; ++count) {
    CollectedData text(nullptr, "Logical drive number 7\r\n" + LabelLines(kLogicalDrive, count));
    ZenxLogicalDevice drive(nullptr);
    EXPECT_THROW(qcmdrun::ParseLogicalDrive(drive, text, "3", "7"), std::out_of_range) << count;
  }
}

}  // namespace
