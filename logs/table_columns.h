#pragma once

#include <algorithm>
#include <string_view>

#include "collect/line_scanner.h"

// A row of the tables that qcmdrun prints between bars, "| 1 | 0 | 12 |", read column by column. What comes before the
// first bar belongs to none. The row's text must outlive it.
class TableRow {
 public:
  explicit TableRow(std::string_view line) : rest_(line.substr(std::min(line.find('|'), line.size()))) {}

  // What is between the column's bar and the next one, but for the character before that (a blank, as it is printed);
  // leading blanks, tabs and line feeds dropped, except that a column of blanks keeps one. "" where one of the two bars
  // is missing, and for all columns after that.
  std::string_view NextColumn() {
    const std::size_t next = rest_.find('|', 1);
    const std::string_view column = next == rest_.npos ? std::string_view() : rest_.substr(1, next - 1);
    rest_.remove_prefix(std::min(next, rest_.size()));
    return CollectedData::TrimLeft(column.substr(0, column.empty() ? 0 : column.size() - 1));
  }

  // What follows the next column's bar, up to the line feed, leading blanks dropped in the same way. "" where the bar
  // or the line feed is missing.
  std::string_view LastColumn() const {
    const std::size_t lineFeed = rest_.find('\n');
    return lineFeed == rest_.npos ? std::string_view() : CollectedData::TrimLeft(rest_.substr(1, lineFeed - 1));
  }

 private:
  std::string_view rest_;  // from the next column's bar on; "" where there is none
};
