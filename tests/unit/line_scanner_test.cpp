#include "collect/line_scanner.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(CollectedData, LosesTheSecondOfTwoLinesWhenOnlyTheFirstEndsInALineFeed) {
  CollectedData text(nullptr, "first\r\nsecond");
  EXPECT_EQ(text.CurrentLine(), "first\r\n");
  EXPECT_THROW(text.NextLine(), std::out_of_range);
}

TEST(CollectedData, TrimLeftOfThreeBlanksKeepsOne) {
  EXPECT_EQ(CollectedData::TrimLeft("   "), " ");
  EXPECT_EQ(CollectedData::TrimLeft(" \t\n"), "\n");
  EXPECT_EQ(CollectedData::TrimLeft(" \t\nvalue \n"), "value \n");
  EXPECT_EQ(CollectedData::TrimLeft("\r\n"), "\r\n");
  EXPECT_EQ(CollectedData::TrimLeft(""), "");
}

TEST(CollectedData, TrimRightDropsBlanksTabsAndLineFeedsButNoCarriageReturn) {
  EXPECT_EQ(CollectedData::TrimRight(" value \t\n"), " value");
  EXPECT_EQ(CollectedData::TrimRight("value \r\n"), "value \r");
  EXPECT_EQ(CollectedData::TrimRight("   "), "");
}

TEST(CollectedData, FindValueTakesTheFirstOfTwoLinesAndStaysThere) {
  CollectedData text(nullptr, "head\r\nSize : 1\r\nSize : 2\r\n");
  EXPECT_EQ(text.FindValue("Size"), " 1\r\n");
  EXPECT_EQ(text.CurrentLine(), "Size : 1\r\n");
}

TEST(CollectedData, FindsALabelInsideALongerOne) {
  CollectedData text(nullptr, "Controller Status : Optimal\r\nStatus : 1\r\n");
  EXPECT_EQ(text.FindValue("Status"), " Optimal\r\n");
}

TEST(CollectedData, FindLineWithoutAHitReturnsNothingAndMovesNothing) {
  CollectedData text(nullptr, "a\nb\n");
  text.NextLine();
  EXPECT_EQ(text.FindLine("c"), "");
  EXPECT_EQ(text.FindValue("c"), "");
  EXPECT_EQ(text.CurrentLine(), "b\n");
}

TEST(CollectedData, SearchesFromTheFirstLineEachTime) {
  CollectedData text(nullptr, "a 1\nb\na 2\n");
  text.FindLine("b");
  EXPECT_EQ(text.FindLine("a"), "a 1\n");
}

TEST(CollectedData, ComparesLabelsInExactCase) {
  CollectedData text(nullptr, "size : 1\nSize : 2\n");
  EXPECT_EQ(text.FindValue("Size"), " 2\n");
}

TEST(CollectedData, ValueAfterColonKeepsBlanksAndLineEnd) {
  EXPECT_EQ(CollectedData::ValueAfterColon("Time : 10:30\r\n"), " 10:30\r\n");
  EXPECT_EQ(CollectedData::ValueAfterColon("Label:\r\n"), "\r\n");
  EXPECT_EQ(CollectedData::ValueAfterColon("no colon\r\n"), "");
  EXPECT_EQ(CollectedData::ValueAfterColon("Label : no line feed"), "");
}

TEST(CollectedData, NextLineValueIfStaysAdvancedAlsoWithoutTheLabel) {
  CollectedData text(nullptr, "head\nSize : 1\nName : x\n");
  EXPECT_EQ(text.NextLineValueIf("Name"), "");
  EXPECT_EQ(text.CurrentLine(), "Size : 1\n");
  EXPECT_EQ(text.NextLineValueIf("Name"), " x\n");
}

TEST(CollectedData, SteppingBackBeforeTheFirstLineFailsOnlyWhenItIsRead) {
  CollectedData text(nullptr, "a\n");
  text.StepBack();
  EXPECT_THROW(text.CurrentLine(), std::out_of_range);
  EXPECT_EQ(text.NextLine(), "a\n");
}

TEST(CollectedData, StepsOutsideTheTextLeadBackInside) {
  CollectedData text(nullptr, "a\nb\nrest");
  EXPECT_EQ(text.FindLine("b"), "b\n");
  for (int step = 0; step < 3; ++step) EXPECT_THROW(text.NextLine(), std::out_of_range) << step;
  for (int step = 0; step < 4; ++step) text.StepBack();
  EXPECT_EQ(text.CurrentLine(), "a\n");
}

TEST(CollectedData, ThrowsTheSameOnEverySystemWithoutALine) {
  const CollectedData none(nullptr, "no line feed");
  try {
    none.CurrentLine();
    FAIL() << "there is a line";
  } catch (const std::out_of_range& failure) {
    EXPECT_STREQ(failure.what(), "there is no line left");
  }
}

TEST(CollectedData, FindsNoLabelThatContinuesAfterALineFeed) {
  CollectedData text(nullptr, "one\ntwo\nthree");
  EXPECT_EQ(text.FindLine("e\nt"), "");
  EXPECT_EQ(text.CurrentLine(), "one\n");
  EXPECT_EQ(text.FindLine("two\n"), "two\n");
  EXPECT_EQ(text.FindLine("three"), "") << "what follows the last line feed is no line";
}

TEST(CollectedData, KeepsNulAndHighBytes) {
  CollectedData text(nullptr, std::string("a\0\xff : \x80\n", 8));
  EXPECT_EQ(text.ValueOfCurrentLine(), " \x80\n");
}

}  // namespace
