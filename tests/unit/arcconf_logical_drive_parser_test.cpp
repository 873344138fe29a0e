#include "tools/arcconf/logical_drive_parser.h"

#include <gtest/gtest.h>

#include "tests/support/filled_fields.h"
#include "tests/support/label_checks.h"
#include "tests/support/tool_text.h"

namespace {

const Labels kLogicalDrive = {
    {"Logical drive name",      "LogicalDriveName"  },
    {"RAID level",              "RaidLevel"         },
    {"Status of logical drive", "LogicalDriveStatus"},
    {"Status of RAID 5EE",      "Raid5EEStatus"     },
    {"Size",                    "Size"              },
    {"Read-cache mode",         "ReadCacheStatus"   },
    {"Write-cache mode",        "WriteCacheStatus"  },
    {"Write-cache setting",     "WriteCacheSetting" },
    {"Partitioned",             "Partitioned"       },
    {"Number of segments",      "NumOfSegments"     },
    {"Stripe-unit size",        "StripeUnitSize"    },
    {"Drive(s)",                "DriveList"         },
    {"Stripe order",            "StripeOrder"       },
    {"Defunct segments",        "DefunctSegments"   },
    {"Defunct stripes",         "DefunctStripes"    },
};

std::set<std::string> Parsed(const std::string& lines) {
  CollectedData text(nullptr, "Logical drive number 2\r\n" + lines);
  ZenxLogicalDevice drive(nullptr);
  arcconf::ParseLogicalDrive(drive, text, "5", "2");
  std::set<std::string> fields = FilledFields(drive);
  EXPECT_EQ(fields.erase("ControllerNum=5"), 1u);
  EXPECT_EQ(fields.erase("LogicalDriveNum=2"), 1u);
  return fields;
}

TEST(ArcconfLogicalDriveParser, ReadsItsLabelsInOrder) {
  ExpectReadInOrder(kLogicalDrive, [](const std::string& lines) { return Parsed(lines + "end\r\n"); });
}

TEST(ArcconfLogicalDriveParser, FillsTheSizeAndTheLaterLabelsWithoutAStatusOfRaid5ee) {
  EXPECT_EQ(Parsed(CrLf("   Status of logical drive : Optimal\n   Size : 100 MB\n   Partitioned : No\n\n")),
            (std::set<std::string>{"LogicalDriveStatus= Optimal\r\n", "Size= 100 MB\r\n", "Partitioned= No\r\n"}));
}

TEST(ArcconfLogicalDriveParser, StaysOnTheLastLineThatItRead) {
  CollectedData text(nullptr, CrLf("Logical drive number 2\n   Size : 100 MB\n\nLogical drive number 3\n"));
  ZenxLogicalDevice drive(nullptr);
  arcconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(text.CurrentLine(), "   Size : 100 MB\r\n");
}

TEST(ArcconfLogicalDriveParser, LeavesAStripeOrderBehindTheDefunctSegmentsToOthers) {
  CollectedData text(nullptr, CrLf("Logical drive number 2\n   Defunct segments : No\n   Stripe order : 0,1\n\n"));
  ZenxLogicalDevice drive(nullptr);
  arcconf::ParseLogicalDrive(drive, text, "5", "2");
  EXPECT_EQ(drive.StripeOrder, "");
  EXPECT_EQ(text.NextLine(), "   Stripe order : 0,1\r\n");
}

TEST(ArcconfLogicalDriveParser, KeepsWhatStandsBeforeTheEndOfTheText) {
  for (std::size_t end = 0; end <= kLogicalDrive.size(); ++end) {
    std::string lines;
    for (std::size_t row = 0; row < end; ++row) lines += LabelLine(kLogicalDrive, row);
    const auto isBefore = [&](std::size_t row) { return row < end; };
    EXPECT_EQ(Parsed(lines), FilledBy(kLogicalDrive, isBefore)) << end << " lines";
    EXPECT_EQ(Parsed(lines + "   Siz"), FilledBy(kLogicalDrive, isBefore)) << end << " lines and a piece";
  }
}

TEST(ArcconfLogicalDriveParser, TakesALineWithoutAColonForAMiss) {
  EXPECT_EQ(Parsed(CrLf("   Size\n   Partitioned : No\n")), std::set<std::string>());
}

}  // namespace
