#include "tools/qcmdrun/logical_drive_parser.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/table_cases.h"
#include "tests/support/tool_text.h"

namespace {

const FieldCases<ZenxLogicalDevice> kLabels = {
    {"Status of logical drive", &ZenxLogicalDevice::LogicalDriveStatus   },
    {"Additional information",  &ZenxLogicalDevice::AdditionalInformation},
    {"RAID level",              &ZenxLogicalDevice::RaidLevel            },
    {"Size (in MB)",            &ZenxLogicalDevice::Size                 },
    {"Write cache status",      &ZenxLogicalDevice::WriteCacheStatus     },
    {"Number of chunks",        &ZenxLogicalDevice::NumOfChunks          },
    {"Stripe-unit size",        &ZenxLogicalDevice::StripeUnitSize       },
    {"Access blocked",          &ZenxLogicalDevice::AccessBlocked        },
    {"Part of array",           &ZenxLogicalDevice::PartOfArray          },
    {"Part of merge group",     &ZenxLogicalDevice::PartOfMergeGroup     },
};
constexpr std::size_t kLast = 9;

struct Block {
  std::vector<std::string> values;
  std::string currentLine;  // after the block
};

Block Read(const std::vector<std::string>& lines) {
  CollectedData text(nullptr, "Logical drive number 7\r\n" + Concatenated(lines) + "next\r\nlast\r\n");
  ZenxLogicalDevice drive(nullptr);
  qcmdrun::ParseLogicalDrive(drive, text, "7", "3");
  EXPECT_EQ(drive.LogicalDriveNum, "7");
  EXPECT_EQ(drive.ControllerNum, "3");
  return {FieldValues(drive, kLabels), std::string(text.CurrentLine())};
}

std::vector<std::string> AllValues() { return NumberedValues(kLabels.size(), " ", "\r\n"); }

TEST(QcmdrunLogicalDriveParser, ReadsEveryLabelIntoItsFieldAndStopsOnTheLastLine) {
  const Block block = Read(LabelledLines(kLabels));
  EXPECT_EQ(block.values, AllValues());
  EXPECT_EQ(block.currentLine, "   Part of merge group : v9\r\n");
}

TEST(QcmdrunLogicalDriveParser, FillsTheRaidLevelFromTheLineBehindTheStatusWithoutAdditionalInformation) {
  EXPECT_EQ(Read(Without(LabelledLines(kLabels), 1)).values, WithEmpty(AllValues(), 1, 1));
}

TEST(QcmdrunLogicalDriveParser, StaysOnTheArrayLineWithoutAMergeGroup) {
  const Block block = Read(Without(LabelledLines(kLabels), kLast));
  EXPECT_EQ(block.values, WithEmpty(AllValues(), kLast, kLast));
  EXPECT_EQ(block.currentLine, "   Part of array : v8\r\n");
}

TEST(QcmdrunLogicalDriveParser, LosesTheAdditionalInformationToAMissingStatus) {
  EXPECT_EQ(Read(Without(LabelledLines(kLabels), 0)).values, WithEmpty(AllValues(), 0, 1));
}

// Each label behind the missing one takes the line of the one after it.
TEST(QcmdrunLogicalDriveParser, LosesEveryLineBehindAMissingOneThatIsNotOptional) {
  for (std::size_t missing = 2; missing < kLast; ++missing) {
    SCOPED_TRACE(kLabels[missing].first);
    EXPECT_EQ(Read(Without(LabelledLines(kLabels), missing)).values, WithEmpty(AllValues(), missing, kLast));
  }
}

TEST(QcmdrunLogicalDriveParser, LosesBothOfTwoSwappedLinesThatAreNotOptional) {
  for (std::size_t index = 2; index + 1 < kLast; ++index) {
    SCOPED_TRACE(kLabels[index].first);
    EXPECT_EQ(Read(WithSwapped(LabelledLines(kLabels), index, index + 1)).values,
              WithEmpty(AllValues(), index, index + 1));
  }
}

TEST(QcmdrunLogicalDriveParser, FindsNothingWhenStatusAndAdditionalInformationAreSwapped) {
  EXPECT_EQ(Read(WithSwapped(LabelledLines(kLabels), 0, 1)).values, WithEmpty(AllValues(), 0, kLast));
}

TEST(QcmdrunLogicalDriveParser, FailsWhereTheTextEndsInsideTheBlock) {
  const std::vector<std::string> lines = LabelledLines(kLabels);
  for (std::size_t count = 0; count < kLast; ++count) {
    SCOPED_TRACE(count);
    const std::vector<std::string> cut(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
    CollectedData text(nullptr, "Logical drive number 7\r\n" + Concatenated(cut));
    ZenxLogicalDevice drive(nullptr);
    EXPECT_THROW(qcmdrun::ParseLogicalDrive(drive, text, "7", "3"), std::out_of_range);
  }
}

}  // namespace
