#include "host/hxahost/terminal/table.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include "host/hxahost/text/display_width.h"

namespace hxahost {

namespace {

constexpr std::size_t kIndentWidth = 2;
constexpr std::size_t kGap = 2;
constexpr std::string_view kMoreColumns = "  \u2026";

// A column that is shown.
struct Shown {
  std::size_t index = 0;
  std::size_t width = 0;
  std::size_t least = 0;
  bool isKept = false;
};

std::string_view Cell(const std::vector<std::string>& row, std::size_t index) {
  return index < row.size() ? std::string_view(row[index]) : std::string_view();
}

// The width that three of four cells need, so that one long cell does not take the room of other columns.
std::size_t UsualWidth(std::vector<std::size_t> widths) {
  const auto usual = widths.begin() + static_cast<std::ptrdiff_t>((widths.size() - 1) * 3 / 4);
  std::ranges::nth_element(widths, usual);
  return *usual;
}

std::vector<Shown> ColumnsWithText(const Table& table) {
  std::vector<Shown> shown;
  for (std::size_t index = 0; index < table.columns.size(); ++index) {
    const TableColumn& column = table.columns[index];
    std::vector<std::size_t> widths;
    for (const auto& row : table.rows) widths.push_back(DisplayWidth(Cell(row, index)));
    const std::size_t widest = widths.empty() ? 0 : std::ranges::max(widths);
    if (widest == 0) continue;
    const std::size_t width = std::min(std::max(widest, DisplayWidth(column.title)), column.widest);
    const std::size_t least = column.isKept ? std::max(column.least, UsualWidth(std::move(widths))) : column.least;
    shown.push_back({index, width, std::min(width, least), column.isKept});
  }
  return shown;
}

std::size_t TotalWidth(const std::vector<Shown>& columns, std::size_t Shown::*width) {
  return std::accumulate(columns.begin(), columns.end(), kIndentWidth + kGap * (columns.size() - 1),
                         [width](std::size_t sum, const Shown& column) { return sum + column.*width; });
}

// Leaves out columns until the others fit at their smallest width, the least important (rightmost) first. One column
// always stays. Returns the room for the columns that stay.
std::size_t LeaveOut(std::vector<Shown>& columns, std::size_t width) {
  std::size_t room = width;
  while (columns.size() > 1 && TotalWidth(columns, &Shown::least) > room) {
    const auto last = std::find_if(columns.rbegin(), columns.rend(), [](const Shown& each) { return !each.isKept; });
    columns.erase(last == columns.rend() ? columns.end() - 1 : last.base() - 1);
    room = width - DisplayWidth(kMoreColumns);
  }
  return room;
}

// Narrows the widest of the columns that may be narrower.
void Narrow(std::vector<Shown>& columns, std::size_t width) {
  while (TotalWidth(columns, &Shown::width) > width) {
    const auto widest = std::ranges::max_element(
        columns, {}, [](const Shown& column) { return column.width > column.least ? column.width : 0; });
    if (widest->width <= widest->least) return;
    --widest->width;
  }
}

// Returns the text of a cell with its colour.
using Painter = std::function<std::string(const std::string& text, std::size_t column)>;

std::string RowText(const std::vector<Shown>& columns, const std::vector<std::string>& row, const Painter& paint) {
  std::string line(kIndentWidth, ' ');
  std::size_t missing = 0;  // blanks before the next cell: a line must not end with blanks
  for (const Shown& column : columns) {
    const std::string text = CutToWidth(Cell(row, column.index), column.width);
    if (!text.empty()) line.append(missing, ' ').append(paint(text, column.index));
    missing = (text.empty() ? missing : 0) + column.width - DisplayWidth(text) + kGap;
  }
  return line;
}

}  // namespace

void WriteTable(std::ostream& out, const Layout& layout, const Table& table) {
  std::vector<Shown> columns = ColumnsWithText(table);
  if (columns.empty()) return;
  const std::size_t room = LeaveOut(columns, layout.width);
  Narrow(columns, room);
  std::vector<std::string> titles;
  for (const TableColumn& column : table.columns) titles.push_back(column.title);
  const auto plain = [](const std::string& text, std::size_t) { return text; };
  out << RowText(columns, titles, plain) << (room < layout.width ? kMoreColumns : "") << '\n';
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const auto paint = [&](const std::string& text, std::size_t column) {
      const auto colour = table.colours.find({row, column});
      return layout.hasColours && colour != table.colours.end() ? InColour(text, colour->second) : text;
    };
    out << RowText(columns, table.rows[row], paint) << '\n';
  }
}

}  // namespace hxahost
