#include "host/hxahost/terminal/table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "host/hxahost/text/display_width.h"

namespace {

using namespace hxahost;

std::string Text(const std::vector<TableColumn>& columns, const std::vector<std::vector<std::string>>& rows) {
  std::ostringstream out;
  WriteTable(out, {}, {columns, rows});
  return out.str();
}

const std::vector<TableColumn> kAB = {{"A"}, {"B"}};

TEST(Table, PutsCellsUnderTheirTitles) {
  const std::vector<TableColumn> columns = {{"Drive"}, {"Name"}};
  EXPECT_EQ(Text(columns,
                 {
                     {"1",  "data"       },
                     {"12", "K\xc3\xa4se"}
  }),
            "  Drive  Name\n"
            "  1      data\n"
            "  12     K\xc3\xa4se\n");
}

TEST(Table, LeavesOutColumnsWithoutAnyText) {
  const std::vector<TableColumn> columns = {{"A"}, {"B"}, {"C"}};
  EXPECT_EQ(Text(columns,
                 {
                     {"1", "", "2"},
                     {"3", "", "" }
  }),
            "  A  C\n"
            "  1  2\n"
            "  3\n");
}

TEST(Table, IsNothingWithoutRowsOrText) {
  EXPECT_EQ(Text(kAB, {}), "");
  EXPECT_EQ(Text(kAB,
                 {
                     {"", ""}
  }),
            "");
}

TEST(Table, TakesARowThatIsShorterThanTheTitles) {
  EXPECT_EQ(Text(kAB,
                 {
                     {"1" },
                     { "1", "2"}
  }),
            "  A  B\n"
            "  1\n"
            "  1  2\n");
}

TEST(Table, CutsACellThatIsWiderThanItsColumnMayBe) {
  const std::vector<TableColumn> columns = {
      {"State", 9}
  };
  EXPECT_EQ(Text(columns, {{"Optimal, rebuilding"}}),
            "  State\n"
            "  Optimal,\u2026\n");
}

TEST(Table, NarrowsTheWidestColumnsThatMayBeNarrower) {
  const std::vector<TableColumn> columns = {
      {"A", 60, 8 },
      {"B", 60, 60},
      {"C", 60, 8 }
  };
  EXPECT_EQ(Text(columns,
                 {
                     {std::string(40, 'a'), std::string(40, 'b'), std::string(30, 'c')}
  }),
            "  A" + std::string(28, ' ') + "B" + std::string(41, ' ') + "C\n  " + std::string(26, 'a') + "\u2026  " +
                std::string(40, 'b') + "  " + std::string(26, 'c') + "\u2026\n");
}

TEST(Table, LeavesOutColumnsFromTheRightWithAnEllipsisIfTheyCannotBeNarrowed) {
  const std::vector<TableColumn> columns = {
      {"A", 60, 40},
      {"B", 60, 40},
      {"C", 60, 40}
  };
  EXPECT_EQ(Text(columns,
                 {
                     {std::string(50, 'a'), std::string(50, 'b'), std::string(50, 'c')}
  }),
            "  A" + std::string(47, ' ') + "B  \u2026\n  " + std::string(45, 'a') + "\u2026  " + std::string(46, 'b') +
                "\u2026\n");
}

TEST(Table, LeavesOutColumnsThatAreKeptLast) {
  const std::vector<TableColumn> columns = {
      {"A", 60, 40,   true},
      {"B", 60, 40  },
      {"C", 60, 40, true    }
  };
  const std::string shown = Text(columns, {
                                              {std::string(40, 'a'), std::string(40, 'b'), std::string(40, 'c')}
  });
  EXPECT_EQ(shown,
            "  A" + std::string(41, ' ') + "C  \u2026\n  " + std::string(40, 'a') + "  " + std::string(40, 'c') + "\n");
}

TEST(Table, LeavesOutNoColumnForOneLongCell) {
  const std::vector<TableColumn> columns = {
      {"State", 90, 8,     true},
      {"Size",       30,    8}
  };
  const std::string size(30, '1');
  const std::string longState(90, 'x');
  const std::string usual = "Failed";
  const std::string shown = Text(columns, {
                                              {usual,     size},
                                              {longState, size},
                                              {usual,     size},
                                              {usual,     size}
  });
  EXPECT_NE(shown.find(std::string(65, 'x') + "\u2026  " + size), std::string::npos) << shown;
  const std::string wide = Text(columns, {
                                             4, {longState, size}
  });
  EXPECT_EQ(wide.find(size), std::string::npos)
      << "cells that are all long are not cut for what matters less: " << wide;
}

TEST(Table, UsesTheWidthOfTheLayout) {
  const Table table{
      std::vector<TableColumn>(12, {"Title",                      30                    }
       ),
      { std::vector<std::string>(12, std::string(25, 'x')), std::vector<std::string>(12, "\u6f22e\u0301\u5b57")}
  };
  for (const std::size_t width : {40U, 80U, 100U, 200U}) {
    std::ostringstream out;
    WriteTable(out, {width, false}, table);
    std::istringstream lines(out.str());
    std::size_t widest = 0;
    for (std::string line; std::getline(lines, line);) widest = std::max(widest, DisplayWidth(line));
    EXPECT_LE(widest, width);
    EXPECT_GE(widest, width - 12) << "room was wasted: " << out.str();
  }
}

TEST(Table, ColoursCellsWithoutMovingTheNextOnes) {
  const Table table{
      {{"State"},               {"Size"}                  },
      { {"Online", "1"},    {"Failed now", "2"},               {"New", "3"}},
      { {{0, 0}, Colour::kGreen}, {{1, 0}, Colour::kRed}, {{1, 1}, Colour::kMagenta}},
  };
  std::ostringstream out;
  WriteTable(out, {100, true}, table);
  EXPECT_EQ(out.str(),
            "  State       Size\n"
            "  \x1b[32mOnline\x1b[0m      1\n"
            "  \x1b[31mFailed now\x1b[0m  \x1b[35m2\x1b[0m\n"
            "  New         3\n");
}

TEST(Table, IsNeverWiderThanTheLayout) {
  for (const std::size_t least : {0U, 1U, 8U, 50U}) {
    std::vector<TableColumn> columns;
    std::vector<std::string> row;
    for (int index = 0; index < 20; ++index) {
      columns.push_back({"Title" + std::to_string(index), 50, least});
      row.push_back("a long value that belongs to column " + std::to_string(index));
    }
    std::istringstream lines(Text(columns, {row, row}));
    std::string line;
    int count = 0;
    for (; std::getline(lines, line); ++count) EXPECT_LE(DisplayWidth(line), Layout().width) << line;
    EXPECT_EQ(count, 3) << "no row is wrapped";
  }
}

}  // namespace
