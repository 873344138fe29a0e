#include "host/hxahost/table.h"

#include <algorithm>
#include <numeric>

#include "host/hxahost/text.h"

namespace hxahost {

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kGap = 2;
constexpr std::size_t kNarrowest = 8;  // what a column is narrowed to at most

// A column that is shown.
struct Shown {
  std::size_t index = 0;
  std::size_t width = 0;
};

std::string_view Cell(const std::vector<std::string>& row, std::size_t index) {
  return index < row.size() ? std::string_view(row[index]) : std::string_view();
}

std::vector<Shown> ColumnsWithText(const Table& table) {
  std::vector<Shown> columns;
  for (std::size_t index = 0; index < table.titles.size(); ++index) {
    std::size_t width = 0;
    for (const auto& row : table.rows) width = std::max(width, DisplayWidth(Cell(row, index)));
    if (width == 0) continue;
    columns.push_back({index, std::min(std::max(width, DisplayWidth(table.titles[index])), table.widest[index])});
  }
  return columns;
}

std::size_t TotalWidth(const std::vector<Shown>& columns) {
  return std::accumulate(columns.begin(), columns.end(), kIndent + kGap * (columns.size() - 1),
                         [](std::size_t sum, const Shown& column) { return sum + column.width; });
}

// Takes from the widest columns, one after the other, so that all of them stay readable.
void NarrowToView(std::vector<Shown>& columns) {
  while (TotalWidth(columns) > kViewWidth) {
    const auto widest = std::ranges::max_element(columns, {}, &Shown::width);
    if (widest->width <= kNarrowest) return;
    --widest->width;
  }
}

void WriteRow(std::ostream& out, const std::vector<Shown>& columns, const std::vector<std::string>& row) {
  std::string line(kIndent, ' ');
  std::size_t missing = 0;  // blanks that are owed: none are put at the end of a line
  for (const Shown& column : columns) {
    const std::string text = CutToWidth(Cell(row, column.index), column.width);
    if (!text.empty()) line.append(missing, ' ').append(text);
    missing = (text.empty() ? missing : 0) + column.width - DisplayWidth(text) + kGap;
  }
  out << CutToWidth(line, kViewWidth) << '\n';
}

}  // namespace

void WriteTable(std::ostream& out, const Table& table) {
  std::vector<Shown> columns = ColumnsWithText(table);
  if (columns.empty()) return;
  NarrowToView(columns);
  WriteRow(out, columns, table.titles);
  for (const auto& row : table.rows) WriteRow(out, columns, row);
}

}  // namespace hxahost
