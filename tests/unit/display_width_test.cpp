#include "host/hxahost/text/display_width.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;

TEST(DisplayWidth, CountsTheColumnsOfATerminal) {
  EXPECT_EQ(DisplayWidth("disk"), 4U);
  EXPECT_EQ(DisplayWidth("K\xc3\xa4se"), 4U);
  EXPECT_EQ(DisplayWidth("\xe6\xbc\xa2"), 2U) << "a wide character";
}

TEST(DisplayWidth, CutsWithAnEllipsisInsideTheWidth) {
  EXPECT_EQ(CutToWidth("Optimal", 7), "Optimal");
  EXPECT_EQ(CutToWidth("Optimal", 6), "Optim\u2026");
  EXPECT_EQ(CutToWidth("Optimal", 1), "\u2026");
  EXPECT_EQ(CutToWidth("Optimal", 0), "");
  EXPECT_EQ(CutToWidth("\xc3\xa4\xc3\xb6\xc3\xbc", 2), "\xc3\xa4\u2026") << "no character is cut in two";
  EXPECT_EQ(CutToWidth("\xe6\xbc\xa2\xe6\xbc\xa2", 3), "\xe6\xbc\xa2\u2026");
}

TEST(DisplayWidth, CountsNoColumnForACombiningMarkAndCutsItWithItsLetter) {
  EXPECT_EQ(DisplayWidth("e\u0301a\u20dd"), 2U);
  EXPECT_EQ(CutToWidth("e\u0301e\u0301e\u0301", 2), "e\u0301\u2026");
}

}  // namespace
