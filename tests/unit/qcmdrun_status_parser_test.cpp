#include "tools/qcmdrun/status_parser.h"

#include <gtest/gtest.h>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/table_cases.h"

namespace {

const FieldCases<ZenxController> kLabels = {
    {"Current/most recent operation",   &ZenxController::Current_MostRecentOperation},
    {"Logical drive",                   &ZenxController::Logical_Drive              },
    {"Background operation active",     &ZenxController::BackgroundOperationActive  },
    {"Status",                          &ZenxController::LastCmdStatus              },
    {"Logical drive size (in stripes)", &ZenxController::LogicalDriveSizeInStripes  },
    {"Number of remaining stripes",     &ZenxController::NumberOfRemainingStripes   },
};
constexpr std::size_t kLogicalDrive = 1;
constexpr std::size_t kSize = 4;

std::vector<std::string> ValuesOf(const std::vector<std::string>& lines) {
  ZenxController controller(nullptr);
  CollectedData text(nullptr, Concatenated(lines));
  qcmdrun::ParseStatus(controller, text);
  return FieldValues(controller, kLabels);
}

std::vector<std::string> AllValues() { return NumberedValues(kLabels.size(), " ", "\r\n"); }

TEST(QcmdrunStatusParser, ReadsEveryLabelIntoItsField) { EXPECT_EQ(ValuesOf(LabelledLines(kLabels)), AllValues()); }

TEST(QcmdrunStatusParser, LeavesTheFieldOfAMissingLabelEmptyUnlessALongerLabelContainsIt) {
  const std::vector<std::string> lines = LabelledLines(kLabels);
  for (std::size_t missing = 0; missing < kLabels.size(); ++missing) {
    SCOPED_TRACE(kLabels[missing].first);
    std::vector<std::string> expected = WithEmpty(AllValues(), missing, missing);
    if (missing == kLogicalDrive) expected[kLogicalDrive] = " v4\r\n";
    EXPECT_EQ(ValuesOf(Without(lines, missing)), expected);
  }
}

TEST(QcmdrunStatusParser, TakesTheFirstLineThatContainsLogicalDriveWhicheverItIs) {
  std::vector<std::string> expected = AllValues();
  expected[kLogicalDrive] = " v4\r\n";
  EXPECT_EQ(ValuesOf(WithSwapped(LabelledLines(kLabels), kLogicalDrive, kSize)), expected);
}

TEST(QcmdrunStatusParser, TakesTheFirstLineThatContainsStatus) {
  std::vector<std::string> lines = LabelledLines(kLabels);
  lines.insert(lines.begin(), "Controller Status : fine\r\n");
  EXPECT_EQ(ValuesOf(lines)[3], " fine\r\n");
}

TEST(QcmdrunStatusParser, DoesNotMindTheOrderOfOtherLines) {
  EXPECT_EQ(ValuesOf(WithSwapped(LabelledLines(kLabels), 0, 5)), AllValues());
}

TEST(QcmdrunStatusParser, LeavesAllFieldsEmptyWithoutAnyLine) {
  EXPECT_EQ(ValuesOf({}), std::vector<std::string>(kLabels.size()));
}

}  // namespace
