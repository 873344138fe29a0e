#include "tools/arcconf/stripe_order_parser.h"

#include <gtest/gtest.h>

#include "tests/support/filled_fields.h"
#include "tests/support/tool_text.h"

namespace {

struct Result {
  std::set<std::string> fields;
  std::string nextLine;
};

Result Parse(const std::string& lines) {
  CollectedData text(nullptr, CrLf(lines + "next\n"));
  ArrayStripeOrder order(nullptr);
  arcconf::ParseStripeOrder(order, text, "5", "2");
  EXPECT_TRUE(order.Members.empty());
  return {FilledFields(order), std::string(text.NextLine())};
}

std::set<std::string> Order(const std::string& list) {
  return {"ControllerNum=5", "StripeOrder=" + list, "CollectionID=ZentraxisCntrlr5LogicalDrv2" + list};
}

TEST(ArcconfStripeOrderParser, KeepsAListOfOneLineAsItIsCut) {
  const Result result = Parse("   Stripe order (Channel,Device)   : 0,0 0,1\n");
  EXPECT_EQ(result.fields, Order(" 0,0 0,1\r\n"));
  EXPECT_EQ(result.nextLine, "next\r\n");
}

TEST(ArcconfStripeOrderParser, JoinsAListOfTwoLinesWithASingleBlank) {
  const Result result = Parse("   Stripe order (Channel,Device)   : 0,0 0,1 \n \t  0,2\n");
  EXPECT_EQ(result.fields, Order(" 0,0 0,1 0,2\r\n"));
  EXPECT_EQ(result.nextLine, "next\r\n");
}

TEST(ArcconfStripeOrderParser, LeavesAThirdLineUnread) {
  const Result result = Parse("   Stripe order (Channel,Device)   : 0,0\n   0,1\n   0,2\n");
  EXPECT_EQ(result.fields, Order(" 0,0 0,1\r\n"));
  EXPECT_EQ(result.nextLine, "   0,2\r\n");
}

TEST(ArcconfStripeOrderParser, SetsOnlyTheControllerIfNoChannelsAndDevicesAreListed) {
  const Result result = Parse("   Stripe order   : 0,0\n   0,1\n");
  EXPECT_EQ(result.fields, (std::set<std::string>{"ControllerNum=5"}));
  EXPECT_EQ(result.nextLine, "   0,1\r\n");
}

TEST(ArcconfStripeOrderParser, TakesAListThatBeginsOnTheSecondLine) {
  EXPECT_EQ(Parse("   Stripe order (Channel,Device)   :\n   0,1\n").fields, Order(" 0,1\r\n"));
  EXPECT_EQ(Parse("   Stripe order (Channel,Device)\n   0,1\n").fields, Order(" 0,1\r\n"));
}

TEST(ArcconfStripeOrderParser, KeepsTheLinesBeforeTheEndOfTheText) {
  CollectedData text(nullptr, "   Stripe order (Channel,Device)   : 0,0\r\n   0,");
  ArrayStripeOrder order(nullptr);
  arcconf::ParseStripeOrder(order, text, "5", "2");
  EXPECT_EQ(FilledFields(order), Order(" 0,0\r\n"));
}

}  // namespace
