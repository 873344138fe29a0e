#include "logs/table_columns.h"

#include "collect/collected_data.h"

namespace {

constexpr auto kNone = std::string_view::npos;

std::size_t FindBar(std::string_view line, int number) {
  std::size_t bar = line.find('|');
  for (int passed = 1; passed < number && bar != kNone; ++passed) bar = line.find('|', bar + 1);
  return bar;
}

}  // namespace

std::string_view CutColumn(std::string_view line, int column) {
  const std::size_t bar = FindBar(line, column);
  const std::size_t next = bar == kNone ? kNone : line.find('|', bar + 1);
  if (next == kNone || next == bar + 1) return {};
  return CollectedData::TrimLeft(line.substr(bar + 1, next - 1 - (bar + 1)));
}

std::string_view CutLastColumn(std::string_view line, int column) {
  const std::size_t bar = FindBar(line, column);
  const std::size_t lineFeed = bar == kNone ? kNone : line.find('\n', bar);
  if (lineFeed == kNone) return {};
  return CollectedData::TrimLeft(line.substr(bar + 1, lineFeed - (bar + 1)));
}
