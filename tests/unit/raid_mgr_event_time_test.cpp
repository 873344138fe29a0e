#include "logs/raid_mgr_event_time.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "logs/raid_mgr_fields.h"

namespace {

TEST(RaidMgrMonths, AreRecognisedByTheLettersThatDiffer) {
  unsigned month = 0;
  for (const std::string_view name : {"January", "February", "March", "April", "May", "June", "July", "August",
                                      "September", "October", "November", "December"}) {
    EXPECT_EQ(MonthNumber(name), ++month) << name;
    EXPECT_EQ(MonthNumber(name.substr(0, 4)), month) << name;
  }
  month = 0;
  for (const std::string_view name : {"", "F", "Mar", "Ap", "", "", "", "Aug", "Sep", "Oct", "Nov", "D"}) {
    ++month;
    EXPECT_EQ(MonthNumber(name), name.empty() ? 0 : month) << name;
  }
}

TEST(RaidMgrMonths, CutShortOrInOtherCaseGiveNoMonth) {
  for (const std::string_view word :
       {"Jan", "Jun", "Jul", "Ja", "J", "Ma", "M", "A", "", "march", "MARCH", "Xyz", "7", "An"}) {
    EXPECT_EQ(MonthNumber(word), 0U) << word;
  }
}

auto TimeOf(std::string_view line) { return ReadEventTime(line, SplitFields(line).front()); }

struct Case {
  std::string_view line;
  const char* time;
};

void ExpectTimes(std::span<const Case> cases) {
  for (const Case& one : cases) {
    const auto time = TimeOf(one.line);
    ASSERT_TRUE(time.has_value()) << one.line;
    EXPECT_EQ(time->ToString(), one.time) << one.line;
  }
}

TEST(RaidMgrEventTime, MonthFirst) {
  constexpr Case kCases[] = {
      {"Mar 5, 2007 11:02:03 PM EST\tINF\t", "20070305230203.000000-300"},
      {"March 5, 2007 12:00:00 PM CET",      "20070305120000.000000+060"},
      {"March 5, 2007 12:00:00 AM CET",      "20070305000000.000000+060"},
      {"December 31, 1999 9:08:07 AM HAW",   "19991231090807.000000-600"},
      {"May 1, 2008 13:00:00 PM EET",        "20080501130000.000000+120"},
      {"mar 5, 2007 11:02:03 PM EST",        "20070005230203.000000-300"},
      {"June 1, 2008 01:00:00 AM PST",       "20080601010000.000000-480"},
      {"Jun 1, 2008 01:00:00 AM PST",        "20080001010000.000000-480"},
      {"May 1, 2008 01:00:00 AM CDT",        "20080501010000.000000-300"},
      {"Mar 5, 2007 11:02:03 EST",           "20070305110203.000000+000"},
      {"Mar 5, 2007 11:02:03  EST",          "20070305110203.000000-300"},
      {"Mar 5, 2007 11:02:03 PST",           "20070305230203.000000+000"},
      {"Mar 5, 2007 12:02:03 AST",           "20070305000203.000000+000"},
  };
  ExpectTimes(kCases);
}

TEST(RaidMgrEventTime, DayFirst) {
  constexpr Case kCases[] = {
      {"5 March 2007 23:02:03 EST\tINF",   "20070305230203.000000-300"},
      {"05 Apr 2007 03:02:01 NZST",        "20070405030201.000000+720"},
      {"5th March 2007 23:02:03 EST",      "20070305230203.000000-300"},
      {"5 March 2007 11:02:03 PM EST",     "20070305110203.000000+000"},
      {"5/3/2007 March 2007 11:02:03 EST", "20070305110203.000000-300"},
  };
  ExpectTimes(kCases);
}

TEST(RaidMgrEventTime, YearFirst) {
  constexpr Case kCases[] = {
      {"2007/03/05 11:02:03 PST\tINF", "20070305110203.000000-480"},
      {"2007/3/5 1:2:3 AEDT",          "20070305010203.000000+660"},
      {"2007/03/05 12:02:03 AM",       "20070305120203.000000+000"},
      {"2007/03/05 11:02:03 PM PST",   "20070305110203.000000+000"},
  };
  ExpectTimes(kCases);
}

TEST(RaidMgrEventTime, MissingPartsCountAsZero) {
  constexpr Case kCases[] = {
      {"20070305",                     "00000020070305000000.000000+000"  },
      {"99999999999999999999",         "0000002147483647000000.000000+000"},
      {"5\n",                          "00000005000000.000000+000"        },
      {"M",                            "00000000000000.000000+000"        },
      {"March",                        "00000300000000.000000+000"        },
      {"Mar 5 2007 11:02:03 PM EST",   "00000305000000.000000+000"        },
      {"Mar 5,",                       "00000305000000.000000+000"        },
      {"2007/03/05",                   "20070305000000.000000+000"        },
      {"2007/03/05 11",                "20070305110000.000000+000"        },
      {"2007/03/05 11:02",             "20070305110200.000000+000"        },
      {"2007/03/05 11:02:03",          "20070305110203.000000+000"        },
      {"2007/03",                      "20070300000000.000000+000"        },
      {"2007/",                        "20070000000000.000000+000"        },
      {"2007/03/05 11:\t02:03 PST",    "20070305110000.000000+000"        },
      {"2007/03/05 11:02:03 PST\tPST", "20070305110203.000000-480"        },
      {"2007/03/05 11:02:03 PST\n",    "20070305110203.000000+000"        },
  };
  ExpectTimes(kCases);
}

TEST(RaidMgrEventTime, ANulEndsTheTimeLikeATab) {
  using namespace std::string_view_literals;
  const auto time = TimeOf("2007/03/05 11:\0002:03 PST"sv);
  ASSERT_TRUE(time.has_value());
  EXPECT_EQ(time->ToString(), "20070305110000.000000+000");
}

TEST(RaidMgrEventTime, ALineThatBeginsWithNeitherDigitNorLetterHasNone) {
  using namespace std::string_view_literals;
  for (const std::string_view line : {""sv, "\n"sv, "\t\t\t\n"sv, " Mar 5, 2007"sv, "-5 March 2007"sv, "\0Mar"sv,
                                      "\xc4pril"sv, "[x]"sv, "@"sv, "`"sv, "{"sv}) {
    EXPECT_FALSE(TimeOf(line).has_value()) << line;
  }
}

TEST(RaidMgrEventTime, AnyLineCutAnywhereIsRead) {
  for (const std::string_view line :
       {"Mar 5, 2007 11:02:03 PM EST", "5 March 2007 23:02:03 EST", "2007/03/05 1:2:3 PST"}) {
    for (std::size_t length = 1; length <= line.size(); ++length) {
      EXPECT_TRUE(TimeOf(line.substr(0, length)).has_value()) << line.substr(0, length);
    }
  }
}

}  // namespace
