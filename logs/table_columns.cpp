#include "logs/table_columns.h"

#include "collect/collected_data.h"

namespace {

constexpr auto kNone = std::string_view::npos;

}  // namespace

TableRow::TableRow(std::string_view line) : line_(line) {
  std::size_t next = 0;
  for (std::size_t& bar : bars_) {
    bar = next == kNone ? kNone : line.find('|', next);
    next = bar == kNone ? kNone : bar + 1;
  }
}

std::string_view TableRow::Column(int number) const {
  const std::size_t bar = Bar(number);
  const std::size_t next = Bar(number + 1);
  if (next == kNone || next == bar + 1) return {};
  return CollectedData::TrimLeft(line_.substr(bar + 1, next - 1 - (bar + 1)));
}

std::string_view TableRow::LastColumn(int number) const {
  const std::size_t bar = Bar(number);
  const std::size_t lineFeed = bar == kNone ? kNone : line_.find('\n', bar);
  if (lineFeed == kNone) return {};
  return CollectedData::TrimLeft(line_.substr(bar + 1, lineFeed - (bar + 1)));
}

std::size_t TableRow::Bar(int number) const {
  const auto index = static_cast<std::size_t>(number) - 1;
  return index < bars_.size() ? bars_[index] : kNone;
}
