#pragma once

#include <algorithm>
#include <string_view>

#include "collect/blanks.h"

// A row of the tables that qcmdrun prints between bars, "| 1 | 0 | 12 |", read column by column. What stands before the
// first bar belongs to none. The row's text must outlive it.
class TableRow {
 public:
  explicit TableRow(std::string_view line) : end_(line.data() + line.size()), bar_(NextBar(line.data())) {}

  // What stands between the column's bar and the next one, but for the character before that (a blank, as it is
  // printed); leading blanks, tabs and line feeds dropped, except that a column of blanks keeps one. "" where one of
  // the two bars is missing, and for all columns behind that. Columns are short: one pass over the characters costs
  // less than a search for the bar and one for the text.
  std::string_view NextColumn() {
    if (bar_ == end_) return {};
    const char* const bar = bar_;
    const char* const text = SkipBlanks(bar + 1, end_);
    bar_ = NextBar(text);
    if (bar_ == end_) return {};
    return text < bar_ - 1 ? std::string_view(text, bar_ - 1) : Trimmed(bar, text, bar_ - 1);
  }

  // What stands behind the next column's bar, up to the line feed, leading blanks dropped in the same way. "" where the
  // bar or the line feed is missing.
  std::string_view LastColumn() const {
    const char* const lineFeed = std::find(bar_, end_, '\n');
    return lineFeed == end_ ? std::string_view() : Trimmed(bar_, SkipBlanks(bar_ + 1, lineFeed), lineFeed);
  }

 private:
  // The next bar from there on, which is near; the end where there is none.
  const char* NextBar(const char* at) const {
    while (at != end_ && *at != '|') ++at;
    return at;
  }

  // What stands behind the bar, up to an end; of blanks the last one. The text is the first that is no blank.
  static std::string_view Trimmed(const char* bar, const char* text, const char* end) {
    if (end <= bar + 1) return {};
    return {std::min(text, end - 1), end};
  }

  const char* const end_;
  const char* bar_;  // before the next column; the end where there is none
};
