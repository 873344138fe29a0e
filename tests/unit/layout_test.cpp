#include "host/hxahost/terminal/layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "host/hxahost/terminal/table.h"
#include "host/hxahost/text/text.h"

namespace {

using namespace hxahost;

Table WideTable() {
  Table table;
  for (int column = 0; column < 12; ++column) table.columns.push_back({"Title " + std::to_string(column), 30});
  table.rows.push_back(std::vector<std::string>(12, std::string(25, 'x')));
  table.rows.push_back(std::vector<std::string>(12, "\u6f22e\u0301\u5b57"));
  return table;
}

std::size_t WidestLine(const std::string& text) {
  std::istringstream lines(text);
  std::size_t widest = 0;
  for (std::string line; std::getline(lines, line);) widest = std::max(widest, DisplayWidth(line));
  return widest;
}

TEST(Page, IsTheDefaultWhereNoneWasSet) {
  std::ostringstream out;
  EXPECT_EQ(PageOf(out).width, 100U);
  EXPECT_FALSE(PageOf(out).hasColours);
}

TEST(Page, BelongsToItsStreamAlone) {
  std::ostringstream out;
  std::ostringstream other;
  SetPage(out, {80, true});
  EXPECT_EQ(PageOf(out).width, 80U);
  EXPECT_TRUE(PageOf(out).hasColours);
  EXPECT_EQ(PageOf(other).width, 100U);
}

TEST(Page, IsKeptToByTablesOfEveryWidth) {
  for (const std::size_t width : {40U, 80U, 100U, 200U}) {
    std::ostringstream out;
    SetPage(out, {width, false});
    WriteTable(out, WideTable());
    EXPECT_LE(WidestLine(out.str()), width);
    EXPECT_GE(WidestLine(out.str()), width - 12) << "room was wasted: " << out.str();
  }
}

TEST(Page, ColoursStatesWithoutMovingWhatStandsBehindThem) {
  Table table;
  table.columns = {
      {"State", 30, 8, true},
      {"Size"     }
  };
  table.rows = {
      {"Online",     "1"},
      {"Failed now", "2"},
      {"New",        "3"}
  };
  std::ostringstream out;
  SetPage(out, {100, true});
  WriteTable(out, table);
  EXPECT_EQ(out.str(),
            "  State       Size\n"
            "  \x1b[32mOnline\x1b[0m      1\n"
            "  \x1b[31mFailed now\x1b[0m  2\n"
            "  New         3\n");
}

}  // namespace
