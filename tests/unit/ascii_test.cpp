#include "host/hxahost/text/ascii.h"

#include <cstdint>
#include <limits>
#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using testing::ElementsAre;

TEST(Ascii, LosesWhiteSpaceAtBothEnds) {
  EXPECT_EQ(Trim(" \t a b\r\n"), "a b");
  EXPECT_EQ(Trim(" \r\n"), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\va\xa0"), "\va\xa0") << "only what tools put around their values";
}

TEST(Ascii, HasSmallLettersForCapitalOnes) { EXPECT_EQ(Lower("RAID-5E \xc4"), "raid-5e \xc4"); }

TEST(Ascii, IsSplitAtASeparatorWithEmptyPieces) {
  EXPECT_THAT(Split("a, b,, c", ", "), ElementsAre("a", "b,", "c"));
  EXPECT_THAT(Split("\na\n", "\n"), ElementsAre("", "a", ""));
  EXPECT_THAT(Split("", "\n"), ElementsAre(""));
  EXPECT_THAT(SplitAtAny("Failed,(a;b)", ",;()"), ElementsAre("Failed", "", "a", "b", ""));
  EXPECT_THAT(SplitAtAny("", ","), ElementsAre(""));
}

TEST(Ascii, IsANumberIfItHasOnlyDigits) {
  EXPECT_TRUE(IsDigits("0190"));
  for (const char* const text : {"", "-1", "1 ", "0x1", "1.5"}) EXPECT_FALSE(IsDigits(text)) << text;
}

TEST(Ascii, CountsUpToTheGreatestNumber) {
  constexpr auto kGreatest = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(ReadCount("0042"), 42U);
  EXPECT_EQ(ReadCount("18446744073709551615"), kGreatest);
  EXPECT_EQ(ReadCount("18446744073709551616"), kGreatest);
  for (const char* const text : {"", "-3", "+3", "ff", "3 ", "1.5"}) EXPECT_EQ(ReadCount(text), std::nullopt) << text;
}

}  // namespace
