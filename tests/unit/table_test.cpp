#include "host/hxahost/table.h"

#include <gtest/gtest.h>

#include <sstream>

#include "host/hxahost/text.h"

namespace {

using namespace hxahost;

std::string Text(const Table& table) {
  std::ostringstream out;
  WriteTable(out, table);
  return out.str();
}

TEST(Table, PutsCellsUnderTheirTitles) {
  EXPECT_EQ(Text({
                {"Drive",       "Name"               },
                {10,            10                   },
                {{"1", "data"}, {"12", "K\xc3\xa4se"}}
  }),
            "  Drive  Name\n"
            "  1      data\n"
            "  12     K\xc3\xa4se\n");
}

TEST(Table, LeavesOutColumnsWithoutAnyText) {
  EXPECT_EQ(Text({
                {"A", "B", "C"},
                {5,   5,      5},
                {{"1", "", "2"},  {"3", "", ""}}
  }),
            "  A  C\n"
            "  1  2\n"
            "  3\n");
}

TEST(Table, IsNothingWithoutRowsOrText) {
  EXPECT_EQ(Text({{"A"}, {5}, {}}), "");
  EXPECT_EQ(Text({{"A"}, {5}, {{""}}}), "");
}

TEST(Table, TakesARowThatIsShorterThanTheTitles) {
  EXPECT_EQ(Text({
                {"A",   "B"       },
                {5,     5         },
                {{"1"}, {"1", "2"}}
  }),
            "  A  B\n"
            "  1\n"
            "  1  2\n");
}

TEST(Table, CutsACellThatIsWiderThanItsColumnMayBe) {
  EXPECT_EQ(Text({{"State"}, {9}, {{"Optimal, rebuilding"}}}),
            "  State\n"
            "  Optimal,\u2026\n");
}

TEST(Table, NarrowsTheWidestColumnsToFitTheView) {
  const std::string text = Text({
      {"A",  "B", "C"},
      {100, 100, 100},
      {{"short", std::string(90, 'b'), std::string(60, 'c')} }
  });
  EXPECT_EQ(text, "  A      B" + std::string(45, ' ') + "C\n" + "  short  " + std::string(43, 'b') + "\u2026  " +
                      std::string(44, 'c') + "\u2026\n");
}

TEST(Table, IsNeverWiderThanTheView) {
  Table table;
  std::vector<std::string> row;
  for (int index = 0; index < 20; ++index) {
    table.titles.push_back("Title" + std::to_string(index));
    table.widest.push_back(50);
    row.push_back("a long value that stands in column " + std::to_string(index));
  }
  table.rows = {row, row};
  std::istringstream lines(Text(table));
  std::string line;
  int count = 0;
  for (; std::getline(lines, line); ++count) {
    EXPECT_EQ(DisplayWidth(line), kViewWidth) << line;
    EXPECT_TRUE(line.ends_with("\u2026")) << line;
  }
  EXPECT_EQ(count, 3) << "no row is wrapped";
}

}  // namespace
