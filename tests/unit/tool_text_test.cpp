#include "collect/tool_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

struct Case {
  std::string name;
  std::string text;
  std::string expected;
};

TEST(ToolText, CutsALogicalDriveNumberUpToTheLineEnd) {
  const std::vector<Case> cases = {
      {"as printed",              "Logical drive number 1\r\n",     "1" },
      {"indented",                "   Logical drive number 12\r\n", "12"},
      {"trailing blank stays",    "Logical drive number 1 \r\n",    "1 "},
      {"no carriage return",      "Logical drive number 1\n",       "1" },
      {"no line end",             "Logical drive number 1",         "1" },
      {"nothing after the blank", "Logical drive number \r\n",      ""  },
      {"no blank at the end",     "Logical drive number",           ""  },
      {"line ends at the cut",    "Logical drive number ",          ""  },
      {"anything for the blank",  "Logical drive number:1\r\n",     "1" },
  };
  for (const Case& textCase : cases) {
    EXPECT_EQ(CutLogicalDriveNumber(textCase.text, "Logical drive number"), textCase.expected) << textCase.name;
  }
}

TEST(ToolText, CutsADeviceTypeAfterItsArticle) {
  const std::vector<Case> cases = {
      {"a",                  "   Device is a Hard drive\r\n",                 "Hard drive"               },
      {"an, for enclosures", "   Device is an Enclosure services device\r\n", "Enclosure services device"},
      {"no carriage return", "   Device is a Hard drive\n",                   "Hard drive"               },
      {"nothing after it",   "   Device is a\r\n",                            ""                         },
      {"text ends",          "Device is a",                                   ""                         },
      {"no label",           "State : Online\r\n",                            ""                         },
  };
  for (const Case& textCase : cases) EXPECT_EQ(CutDeviceType(textCase.text), textCase.expected) << textCase.name;
}

TEST(ToolText, JoinsPartsWithOnlyTheSeparator) {
  struct JoinCase {
    std::string name;
    std::string text;
    std::string separator;
    std::string part;
    std::string expected;
  };
  const std::vector<JoinCase> cases = {
      {"line end and blanks between go",       " 1,0 1,1 \t\r\n", " ",     "   2,0\r\n", " 1,0 1,1 2,0\r\n"      },
      {"words between",                        " Hot Spare\r\n",  " for ", " 1,2\r\n",   " Hot Spare for 1,2\r\n"},
      {"blanks and line end at the ends stay", "  a",             " ",     "b  \r\n",    "  a b  \r\n"           },
      {"nothing before",                       "",                " ",     "b",          " b"                    },
      {"nothing after",                        "a\r\n",           " ",     "",           "a "                    },
      {"blanks alone",                         " \r\n",           " ",     "   ",        " "                     },
      {"a tab that opens the part stays",      "a",               " ",     "\tb",        "a \tb"                 },
  };
  for (const JoinCase& joinCase : cases) {
    std::string text = joinCase.text;
    Join(text, joinCase.separator, joinCase.part);
    EXPECT_EQ(text, joinCase.expected) << joinCase.name;
  }
}

TEST(ToolText, RecognisesALineThatBeginsWithADigit) {
  EXPECT_TRUE(BeginsWithDigit("0,1"));
  EXPECT_TRUE(BeginsWithDigit("9"));
  EXPECT_FALSE(BeginsWithDigit(" 1"));
  EXPECT_FALSE(BeginsWithDigit("/"));
  EXPECT_FALSE(BeginsWithDigit(":"));
  EXPECT_FALSE(BeginsWithDigit("\xb2"));
  EXPECT_FALSE(BeginsWithDigit(""));
}

TEST(ToolText, ReadsTheNumberThatATextBeginsWith) {
  struct NumberCase {
    std::string text;
    int expected;
  };
  const std::vector<NumberCase> cases = {
      {"12",                   12                             },
      {" \t\r\n12 of 13",      12                             },
      {"-3",                   -3                             },
      {"+3",                   3                              },
      {"007",                  7                              },
      {"0x10",                 0                              },
      {"x1",                   0                              },
      {"+-1",                  0                              },
      {"- 1",                  0                              },
      {"\v\f12",               12                             },
      {"",                     0                              },
      {"99999999999",          std::numeric_limits<int>::max()},
      {"-99999999999",         std::numeric_limits<int>::min()},
      {"99999999999999999999", std::numeric_limits<int>::max()},
  };
  for (const NumberCase& numberCase : cases) {
    EXPECT_EQ(LeadingNumber(numberCase.text), numberCase.expected) << "[" << numberCase.text << "]";
  }
}

TEST(ToolText, ReadsTheNumberOfAViewThatNoNulEnds) {
  EXPECT_EQ(LeadingNumber(std::string_view("123456").substr(0, 3)), 123);
}

}  // namespace
