#pragma once

#include <string_view>

// A row of the tables that qcmdrun prints between bars, "| 1 | 0 | 12 |", read column by column. What stands before the
// first bar belongs to none. The row's text must outlive it.
class TableRow {
 public:
  explicit TableRow(std::string_view line);

  // What stands between the column's bar and the next one, but for the character before that (a blank, as it is
  // printed); leading blanks, tabs and line feeds dropped, except that a column of blanks keeps one. "" where one of
  // the two bars is missing, and for all columns behind that.
  std::string_view NextColumn();

  // What stands behind the next column's bar, up to the line feed, leading blanks dropped in the same way. "" where the
  // bar or the line feed is missing.
  std::string_view LastColumn() const;

 private:
  const char* bar_;  // before the next column; the end where there is none
  const char* const end_;
};
