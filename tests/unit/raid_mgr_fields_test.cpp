#include "logs/raid_mgr_fields.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_view_literals;
using Fields = std::array<std::string_view, 4>;

TEST(RaidMgrFields, AreSeparatedByTabsAndNuls) {
  struct Case {
    const char* name;
    std::string_view line;
    Fields fields;
  };
  constexpr Case kCases[] = {
      {"four",                       "time\tINF\tMACHINE\tText.\n"sv, {"time", "INF", "MACHINE", "Text.\n"}},
      {"a fifth is dropped",         "a\tb\tc\td\te\n"sv,             {"a", "b", "c", "d"}                 },
      {"three",                      "a\tb\tc\n"sv,                   {"a", "b", "c\n", ""}                },
      {"no tab",                     "a\n"sv,                         {"a\n", "", "", ""}                  },
      {"nothing",                    ""sv,                            {"", "", "", ""}                     },
      {"only tabs",                  "\t\t\t\t\t\n"sv,                {"", "", "", ""}                     },
      {"an empty one in the middle", "a\t\tc\td"sv,                   {"a", "", "c", "d"}                  },
      {"a tab at the end",           "a\tb\t"sv,                      {"a", "b", "", ""}                   },
      {"NULs",                       "a\0b\tc\0d"sv,                  {"a", "b", "c", "d"}                 },
  };
  for (const Case& one : kCases) EXPECT_EQ(SplitFields(one.line), one.fields) << one.name;
}

}  // namespace
