#include "tools/hrconf/stripe_order_parser.h"

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
  hrconf::ParseStripeOrder(order, text, "5", "2");
  EXPECT_TRUE(order.Members.empty());
  return {FilledFields(order), std::string(text.NextLine())};
}

std::set<std::string> Order(const std::string& list) {
  return {"ControllerNum=5", "StripeOrder=" + list, "CollectionID=ZentraxisCntrlr5LogicalDrv2" + list};
}

TEST(HrconfStripeOrderParser, JoinsAListOfSeveralLinesWithSingleBlanks) {
  struct Case {
    const char* name;
    const char* lines;
    const char* list;
  };
  const Case cases[] = {
      {"one line",    "Stripe order (Channel,Device) : 0,0 0,1\n",             " 0,0 0,1\r\n"     },
      {"two lines",   "Stripe order (Channel,Device) : 0,0\t \n   0,1\n",      " 0,0 0,1\r\n"     },
      {"three lines", "Stripe order (Channel,Device) : 0,0\n   0,1\n\t0,2 \n", " 0,0 0,1 0,2 \r\n"},
      {"four lines",  "Stripe order (Channel,Device) : 0,0\n 1\n 2\n 3,3\n",   " 0,0 1 2 3,3\r\n" },
      {"later line",  "Stripe order (Channel,Device) :\n   0,1\n",             " 0,1\r\n"         },
  };
  for (const auto& [name, lines, list] : cases) {
    const Result result = Parse(lines);
    EXPECT_EQ(result.fields, Order(list)) << name;
    EXPECT_EQ(result.nextLine, "next\r\n") << name;
  }
}

TEST(HrconfStripeOrderParser, TakesOnlyTheFollowingLinesIfNoChannelsAndDevicesAreListed) {
  EXPECT_EQ(Parse("Stripe order : 0,0\n   0,1\n").fields, Order(" 0,1\r\n"));
  EXPECT_EQ(Parse("Stripe order : 0,0\n").fields,
            (std::set<std::string>{"ControllerNum=5", "CollectionID=ZentraxisCntrlr5LogicalDrv2"}));
}

TEST(HrconfStripeOrderParser, KeepsTheLinesBeforeTheEndOfTheText) {
  CollectedData text(nullptr, "Stripe order (Channel,Device) : 0,0\r\n   0,1\r\n   0,");
  ArrayStripeOrder order(nullptr);
  hrconf::ParseStripeOrder(order, text, "5", "2");
  EXPECT_EQ(FilledFields(order), Order(" 0,0 0,1\r\n"));
}

}  // namespace
