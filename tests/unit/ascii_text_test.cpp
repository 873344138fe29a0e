#include "collect/ascii_text.h"

#include <gtest/gtest.h>

namespace {

TEST(Trim, CutsBlanksTabsCarriageReturnsAndLineFeedsAtBothEndsAndNothingElse) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string_view trimmed;
  };
  using namespace std::string_view_literals;
  constexpr Case kCases[] = {
      {"a value as the tools print it", " 5.2-0 (12345)\r\n",  "5.2-0 (12345)"},
      {"all four at both ends",         "\r\n\t value \t\n\r", "value"        },
      {"blanks inside",                 "  two  words ",       "two  words"   },
      {"line ends inside",              "one\r\n two\r\n",     "one\r\n two"  },
      {"nothing",                       "",                    ""             },
      {"only what is cut",              " \t\r\n",             ""             },
      {"one character",                 "x",                   "x"            },
      {"a vertical tab stays",          "\v x \f",             "\v x \f"      },
      {"NUL and high bytes stay",       " \0\xff\xa0 "sv,      "\0\xff\xa0"sv },
  };
  for (const Case& one : kCases) EXPECT_EQ(Trimmed(one.text), one.trimmed) << one.name;
}

}  // namespace
