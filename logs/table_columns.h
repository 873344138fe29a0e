#pragma once

#include <array>
#include <string_view>

// A row of the tables that qcmdrun prints between bars: "| 1 | 0 | 12 |". Columns are counted from 1, and what stands
// before the first bar belongs to none. No table has more than seven; what a row has behind the eighth bar is not
// looked at. The row's text must outlive it.
class TableRow {
 public:
  explicit TableRow(std::string_view line);

  // What stands between the column's bar and the next one, but for the character before that (a blank, as it is
  // printed); leading blanks, tabs and line feeds dropped, except that a column of blanks keeps one. "" where one of
  // the two bars is missing.
  std::string_view Column(int number) const;

  // What stands behind the column's bar, up to the line feed, leading blanks dropped in the same way. "" where the bar
  // or the line feed is missing.
  std::string_view LastColumn(int number) const;

 private:
  std::size_t Bar(int number) const;

  std::string_view line_;
  std::array<std::size_t, 8> bars_{};  // where they stand; npos where there is none
};
