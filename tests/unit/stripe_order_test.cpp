#include "collect/stripe_order.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(StripeOrder, PutsOneBlankBetweenALineAndTheNext) {
  CollectedData text(nullptr, "head\r\n \t 0,2 0,3 \r\n");
  std::string list = " 0,0 0,1 \t\r\n";
  EXPECT_TRUE(ContinueList(text, list));
  EXPECT_EQ(list, " 0,0 0,1 0,2 0,3 \r\n");
  EXPECT_EQ(text.CurrentLine(), " \t 0,2 0,3 \r\n");
}

TEST(StripeOrder, LeavesALineThatBeginsWithNoDigit) {
  for (const char* const line : {"Logical drive number 2\r\n", "\r\n", "   \r\n", " :0,1\r\n", "\n"}) {
    CollectedData text(nullptr, std::string("head\r\n") + line);
    std::string list = " 0,0\r\n";
    EXPECT_FALSE(ContinueList(text, list)) << line;
    EXPECT_EQ(list, " 0,0\r\n") << line;
    EXPECT_EQ(text.CurrentLine(), "head\r\n") << line;
  }
}

TEST(StripeOrder, FailsWhereTheTextHasNoFurtherLine) {
  CollectedData text(nullptr, "head\r\n");
  std::string list = " 0,0\r\n";
  EXPECT_THROW(ContinueList(text, list), std::out_of_range);
  EXPECT_EQ(list, " 0,0\r\n");
}

TEST(StripeOrder, MakesTheIdentifierOfItsPartsWithNothingBetween) {
  ArrayStripeOrder order(nullptr);
  order.ControllerNum = "5";
  order.StripeOrder = " 0,0 0,1\r\n";
  EXPECT_EQ(StripeOrderId(order, "12"), "ZentraxisCntrlr5LogicalDrv12 0,0 0,1\r\n");
}

}  // namespace
