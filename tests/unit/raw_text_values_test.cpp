#include "host/hxahost/result/raw_text_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Values = std::vector<std::string>;

// All values of a text, one after the other.
Values ValuesOf(const std::vector<std::string>& lines) {
  Values all;
  for (const hxahost::RawValues& read : hxahost::ReadRawValues(lines)) {
    all.insert(all.end(), read.values.begin(), read.values.end());
  }
  return all;
}

TEST(RawTextValues, SeparatesDataFromOtherLines) {
  struct Case {
    const char* name;
    std::vector<std::string> lines;
    Values values;
  };
  const Case cases[] = {
      {"a labelled value",            {"   Size    : 69889 MB "},                          {"69889 MB"}             },
      {"a value with a colon",        {"   Time    : 12:30"},                              {"12:30"}                },
      {"a label without a value",     {"   Name    : "},                                   {}                       },
      {"a value without a label",     {" : 5"},                                            {}                       },
      {"an equals sign",              {"   Size = 5 MB"},                                  {"5 MB"}                 },
      {"a heading with a number",     {"   Channel #1:"},                                  {}                       },
      {"a heading between rules",     {"-----", "Controller information", "-----"},        {}                       },
      {"a blank line",                {"", " \t"},                                         {}                       },
      {"rules",                       {"-----", "+---+---+", "======"},                    {}                       },
      {"the closing line",            {"Command completed successfully."},                 {}                       },
      {"the line of a refusal",       {"Command aborted: 5"},                              {}                       },
      {"a sentence",                  {"Get event log has been started for 1..."},         {}                       },
      {"a row of a table",            {"| 1 |  2 | a b |"},                                {"1", "2", "a b"}        },
      {"an empty cell",               {"| 1 |  |"},                                        {"1"}                    },
      {"the head of a table",         {"+--+--+", "| A | B |", "+--+--+", "| 1 | 2 |"},    {"1", "2"}               },
      {"a head without bars",         {"  Date   Time   ID", "+----+", "| 1 | 2 |"},       {"1", "2"}               },
      {"the last row of a table",     {"+--+--+", "| 1 | 2 |", "| 3 | 4 |", "+--+--+"},    {"1", "2", "3", "4"}     },
      {"columns without bars",        {"  1    2    3 4"},                                 {"1", "2", "3 4"}        },
      {"two columns",                 {"  1    2"},                                        {}                       },
      {"pairs",                       {"A:1 C:2 P:0x1f"},                                  {"1", "2", "0x1f"}       },
      {"a pair and a word",           {"A:1 two"},                                         {"1 two"}                },
      {"a count",                     {"   Logical drive 2 - 3"},                          {"3"}                    },
      {"a dash between words",        {"   one - two"},                                    {}                       },
      {"a kind",                      {"  Device is a Hard drive"},                        {"Hard drive"}           },
      {"a kind with a vowel",         {"  Device is an Enclosure"},                        {"Enclosure"}            },
      {"a code",                      {"0000120c"},                                        {"0000120c"}             },
      {"nine digits",                 {"0000120c0"},                                       {}                       },
      {"an element",                  {"<event id=\"7\" text=\"a : b\" />"},               {"7", "a : b"}           },
      {"an element cut off",          {"<event id=\"7\" text=\"a "},                       {}                       },
      {"the tags around elements",    {"<Log type=\"x\">", "</Log>"},                      {}                       },
      {"an entry of the manager log", {"June 14, 2005 9:12:05 AM EDT\tINF\tPC\tDone: 1."}, {"INF", "PC", "Done: 1."}},
  };
  for (const Case& each : cases) EXPECT_EQ(ValuesOf(each.lines), each.values) << each.name;
}

TEST(RawTextValues, JoinsAValueWithTheLinesThatContinueIt) {
  const std::vector<std::string> lines = {
      "   Stripe order : 0,2 0,3",
      "                  0,4",
      "                  0,5",
      "   Next         : 1",
  };
  const auto read = hxahost::ReadRawValues(lines);
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0].firstLine, 0U);
  EXPECT_EQ(read[0].lineCount, 3U);
  EXPECT_EQ(read[0].values, Values{"0,2 0,3 0,4 0,5"});
  EXPECT_EQ(read[1].firstLine, 3U);
}

TEST(RawTextValues, JoinsNoLineThatBeginsElsewhereOrHasALabel) {
  EXPECT_EQ(ValuesOf({"   Order : 0,2", "          0,4"}), (Values{"0,2"}));
  EXPECT_EQ(ValuesOf({"   Order : 0,2", "           A : 4"}), (Values{"0,2", "4"}));
}

TEST(RawTextValues, ReadsAnyBytesCutAnywhere) {
  const std::string line = "<a b=\"c\" /> : = | - x\t\xff\x80 is a \x01 : ";
  for (std::size_t begin = 0; begin < line.size(); ++begin) {
    for (std::size_t length = 0; begin + length <= line.size(); ++length) {
      const std::string cut = line.substr(begin, length);
      for (const hxahost::RawValues& read : hxahost::ReadRawValues(std::vector<std::string>{cut, cut})) {
        ASSERT_LE(read.firstLine + read.lineCount, 2U);
        ASSERT_FALSE(read.values.empty());
      }
    }
  }
}

}  // namespace
