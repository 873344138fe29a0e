#include "logs/table_columns.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

// The column, counted from 1.
std::string_view Column(const std::string& line, int number) {
  TableRow row(line);
  for (int passed = 1; passed < number; ++passed) row.NextColumn();
  return row.NextColumn();
}

// The text after so many columns.
std::string_view LastColumn(const std::string& line, int number) {
  TableRow row(line);
  for (int passed = 1; passed < number; ++passed) row.NextColumn();
  return row.LastColumn();
}

struct Case {
  std::string name;
  std::string line;
  int column;
  std::string expected;
};

TEST(TableColumns, CutsAColumnShortOfTheCharacterBeforeTheNextBar) {
  const std::vector<Case> cases = {
      {"first column",                         "| 1 | 22 | 3 |\r\n",            1, "1"    },
      {"a later column",                       "| 1 | 22 | 3 |\r\n",            2, "22"   },
      {"last column with a closing bar",       "| 1 | 22 | 3 |\r\n",            3, "3"    },
      {"after the last bar",                   "| 1 | 22 | 3 |\r\n",            4, ""     },
      {"past the last bar",                    "| 1 | 22 | 3 |\r\n",            9, ""     },
      {"the seventh of a full row",            "|1 |2 |3 |4 |5 |6 |7 |\r\n",    7, "7"    },
      {"more columns than a table has",        "|1 |2 |3 |4 |5 |6 |7 |8 |\r\n", 8, "8"    },
      {"tabs and line feeds among blanks",     "| \t \n  \t3 |\r\n",            1, "3"    },
      {"column of blanks and a tab keeps it",  "|   \t |\r\n",                  1, "\t"   },
      {"many blanks",                          "|             0 |\r\n",         1, "0"    },
      {"blanks inside the text stay",          "|  a  b |\r\n",                 1, "a  b" },
      {"carriage return is no blank",          "|  \r3 |\n",                    1, "\r3"  },
      {"high characters are no blanks",        "| \xa0x |\r\n",                 1, "\xa0x"},
      {"a column without its next bar",        "| 1 | 2\r\n",                   3, ""     },
      {"empty line",                           "",                              1, ""     },
      {"text before the first bar",            "row | 1 | 2 |\r\n",             1, "1"    },
      {"no bar",                               "1 2 3\r\n",                     1, ""     },
      {"no next bar",                          "| 1 | 2\r\n",                   2, ""     },
      {"nothing between the bars",             "||1 |\r\n",                     1, ""     },
      {"one blank between the bars",           "| |1 |\r\n",                    1, ""     },
      {"column of blanks keeps one",           "|    |\r\n",                    1, " "    },
      {"no blank before the bar: one is lost", "|123|\r\n",                     1, "12"   },
      {"trailing blanks stay",                 "| 3   |\r\n",                   1, "3  "  },
      {"leading tab",                          "|\t3 |\r\n",                    1, "3"    },
  };
  for (const Case& columnCase : cases) {
    EXPECT_EQ(Column(columnCase.line, columnCase.column), columnCase.expected) << columnCase.name;
  }
}

TEST(TableColumns, CutsTheLastColumnUpToTheLineFeed) {
  const std::vector<Case> cases = {
      {"carriage return stays",      "| 1 | no answer\r\n",   2, "no answer\r"  },
      {"closing bar stays",          "| 1 | no answer |\r\n", 2, "no answer |\r"},
      {"column of blanks keeps one", "| 1 |   \n",            2, " "            },
      {"nothing after the bar",      "| 1 |\n",               2, ""             },
      {"bar missing",                "| 1\r\n",               2, ""             },
      {"no line feed after the bar", "| 1 | no answer",       2, ""             },
      {"first column",               "| 1 | 2\r\n",           1, "1 | 2\r"      },
      {"column of a line feed",      "| 1 |  \n",             2, " "            },
      {"empty line",                 "",                      1, ""             },
  };
  for (const Case& columnCase : cases) {
    EXPECT_EQ(LastColumn(columnCase.line, columnCase.column), columnCase.expected) << columnCase.name;
  }
}

}  // namespace
