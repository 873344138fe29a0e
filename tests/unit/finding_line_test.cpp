#include "host/hxahost/views/monitoring/finding_line.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace hxahost;

TEST(FindingText, IsOneLineThatNamesTheObjectBothWays) {
  const Finding finding{
      Severity::kCritical,
      "KVRSG_zxDiskDrive",
      "C1 I00",
      "Hard disk at channel 1, ID 0",
      "State",
      "Defunct (DDD)",
      {"the disk has failed", "replace it"}
  };
  EXPECT_EQ(
      FindingText(finding),
      "critical: Hard disk at channel 1, ID 0 [C1 I00]: State \"Defunct (DDD)\": Replace it: the disk has failed");
}

TEST(FindingText, NamesAnObjectWithOneNameOnce) {
  EXPECT_EQ(SubjectText({Severity::kWarning, "", "the log", "the log", "", "", {}}), "the log");
  EXPECT_EQ(SubjectText({Severity::kWarning, "", "", "the log", "", "", {}}), "the log");
}

TEST(FindingText, SendsOnlyTextToTheTerminal) {
  const Finding finding{Severity::kUnknown, "", "i\x1b", "n\x07", "p\x1b", "a\nb\x1b", {"m"}};
  EXPECT_EQ(FindingText(finding), "unknown: n\\x07 [i\\x1b]: p\\x1b \"a\\nb\\x1b\": m");
}

TEST(FindingText, CutsAPageOfText) {
  const Finding finding{Severity::kUnknown, "", "", "", "", std::string(1000, 'x'), {}};
  EXPECT_LT(QuotedText(finding).size(), 170U);
}

}  // namespace
