#include "logs/table_columns.h"

#include <algorithm>

#include "collect/blanks.h"

namespace {

// What stands behind the bar, up to an end; of blanks the last one. The text is the first that is no blank.
std::string_view Trimmed(const char* bar, const char* text, const char* end) {
  if (end <= bar + 1) return {};
  return {std::min(text, end - 1), end};
}

}  // namespace

TableRow::TableRow(std::string_view line)
    : bar_(std::find(line.data(), line.data() + line.size(), '|')), end_(line.data() + line.size()) {}

// Columns are short: one pass over the characters costs less than a search for the bar and one for the text.
std::string_view TableRow::NextColumn() {
  if (bar_ == end_) return {};
  const char* const bar = bar_;
  const char* const text = SkipBlanks(bar + 1, end_);
  const char* next = text;
  while (next != end_ && *next != '|') ++next;
  bar_ = next;
  return next == end_ ? std::string_view() : Trimmed(bar, text, next - 1);
}

std::string_view TableRow::LastColumn() const {
  const char* const lineFeed = std::find(bar_, end_, '\n');
  return lineFeed == end_ ? std::string_view() : Trimmed(bar_, SkipBlanks(bar_ + 1, lineFeed), lineFeed);
}
