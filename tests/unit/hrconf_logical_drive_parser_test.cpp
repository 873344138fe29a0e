#include "tools/hrconf/logical_drive_parser.h"

#include <gtest/gtest.h>

#include "tests/support/filled_fields.h"
#include "tests/support/label_checks.h"
#include "tests/support/tool_text.h"

namespace {

const Labels kLogicalDrive = {
    {"Logical drive name",        "LogicalDriveName"     },
    {"RAID level",                "RaidLevel"            },
    {"Status of logical drive",   "LogicalDriveStatus"   },
    {"Additional information",    "AdditionalInformation"},
    {"Size",                      "Size"                 },
    {"Write cache status",        "WriteCacheStatus"     },
    {"Number of chunks",          "NumOfChunks"          },
    {"Stripe-unit size",          "StripeUnitSize"       },
    {"Drive(s) (Channel,Device)", "DriveList"            },
};
constexpr std::size_t kSize = 4;

std::set<std::string> Parsed(const std::string& lines) {
  CollectedData text(nullptr, "Logical drive number 2\r\n" + lines);
  ZenxLogicalDevice drive(nullptr);
  hrconf::ParseLogicalDrive(drive, text, "5", "2");
  std::set<std::string> fields = FilledFields(drive);
  EXPECT_EQ(fields.erase("ControllerNum=5"), 1u);
  EXPECT_EQ(fields.erase("LogicalDriveNum=2"), 1u);
  return fields;
}

TEST(HrconfLogicalDriveParser, ReadsItsLabelsInOrderTheSizeTakingTheWriteCacheStatusWithIt) {
  ExpectReadInOrder(
      kLogicalDrive, [](const std::string& lines) { return Parsed(lines + "end\r\n"); }, kSize);
}

TEST(HrconfLogicalDriveParser, LosesTheWriteCacheStatusWithTheSizeAndNothingElse) {
  EXPECT_EQ(Parsed(CrLf("   RAID level : 1\n   Write cache status : On\n   Number of chunks : 2\nend\n")),
            (std::set<std::string>{"RaidLevel= 1\r\n", "NumOfChunks= 2\r\n"}));
}

TEST(HrconfLogicalDriveParser, StaysOnTheLastLineThatItRead) {
  CollectedData text(nullptr, CrLf("Logical drive number 2\n   Size : 1\n   Number of chunks : 2\n\nend\n"));
  ZenxLogicalDevice drive(nullptr);
  hrconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(text.CurrentLine(), "   Number of chunks : 2\r\n");
}

TEST(HrconfLogicalDriveParser, KeepsWhatStandsBeforeTheEndOfTheText) {
  for (std::size_t end = 0; end <= kLogicalDrive.size(); ++end) {
    std::string lines;
    for (std::size_t row = 0; row < end; ++row) lines += LabelLine(kLogicalDrive, row);
    EXPECT_EQ(Parsed(lines + "   Dri"), FilledBy(kLogicalDrive, [&](std::size_t row) { return row < end; })) << end;
  }
}

}  // namespace
