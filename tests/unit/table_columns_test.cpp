#include "logs/table_columns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace table_columns_test {
namespace {

struct Case {
  std::string name;
  std::string line;
  int column;
  std::string expected;
};

TEST(TableColumns, CutsAColumnShortOfTheCharacterBeforeTheNextBar) {
  const std::vector<Case> cases = {
      {"first column",                         "| 1 | 22 | 3 |\r\n",            1, "1"  },
      {"a later column",                       "| 1 | 22 | 3 |\r\n",            2, "22" },
      {"last column with a closing bar",       "| 1 | 22 | 3 |\r\n",            3, "3"  },
      {"behind the last bar",                  "| 1 | 22 | 3 |\r\n",            4, ""   },
      {"past the last bar",                    "| 1 | 22 | 3 |\r\n",            9, ""   },
      {"the seventh of a full row",            "|1 |2 |3 |4 |5 |6 |7 |\r\n",    7, "7"  },
      {"more columns than a table has",        "|1 |2 |3 |4 |5 |6 |7 |8 |\r\n", 8, ""   },
      {"text before the first bar",            "row | 1 | 2 |\r\n",             1, "1"  },
      {"no bar",                               "1 2 3\r\n",                     1, ""   },
      {"no next bar",                          "| 1 | 2\r\n",                   2, ""   },
      {"nothing between the bars",             "||1 |\r\n",                     1, ""   },
      {"one blank between the bars",           "| |1 |\r\n",                    1, ""   },
      {"column of blanks keeps one",           "|    |\r\n",                    1, " "  },
      {"no blank before the bar: one is lost", "|123|\r\n",                     1, "12" },
      {"trailing blanks stay",                 "| 3   |\r\n",                   1, "3  "},
      {"leading tab",                          "|\t3 |\r\n",                    1, "3"  },
  };
  for (const Case& columnCase : cases) {
    EXPECT_EQ(TableRow(columnCase.line).Column(columnCase.column), columnCase.expected) << columnCase.name;
  }
}

TEST(TableColumns, CutsTheLastColumnUpToTheLineFeed) {
  const std::vector<Case> cases = {
      {"carriage return stays",       "| 1 | no answer\r\n",   2, "no answer\r"  },
      {"closing bar stays",           "| 1 | no answer |\r\n", 2, "no answer |\r"},
      {"column of blanks keeps one",  "| 1 |   \n",            2, " "            },
      {"nothing behind the bar",      "| 1 |\n",               2, ""             },
      {"bar missing",                 "| 1\r\n",               2, ""             },
      {"no line feed behind the bar", "| 1 | no answer",       2, ""             },
  };
  for (const Case& columnCase : cases) {
    EXPECT_EQ(TableRow(columnCase.line).LastColumn(columnCase.column), columnCase.expected) << columnCase.name;
  }
}

}  // namespace
}  // namespace table_columns_test
