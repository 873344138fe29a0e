#include "host/hxahost/views/tables/instance_table.h"

#include <algorithm>
#include <limits>

#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/views/level_colour.h"

namespace hxahost {

namespace {

// "Critical" of "Critical (CRT)": the legacy utility adds a short form of two or three capital letters. "Enabled
// (write-back)" and "Yes (0,8)" have none.
std::string WithoutCode(const std::string& text) {
  const std::size_t open = text.rfind('(');
  if (open == text.npos || open == 0 || !text.ends_with(')')) return text;
  const std::string_view code = std::string_view(text).substr(open + 1, text.size() - open - 2);
  const bool isCode = code.size() >= 2 && code.size() <= 3 &&
                      std::ranges::all_of(code, [](char each) { return each >= 'A' && each <= 'Z'; });
  return isCode ? std::string(Trim(text.substr(0, open))) : text;
}

std::uint64_t SmallestOf(const std::vector<InstanceRow>& rows) {
  std::uint64_t smallest = std::numeric_limits<std::uint64_t>::max();
  for (const InstanceRow& row : rows) smallest = std::min(smallest, row.bytes.value_or(smallest));
  return smallest;
}

std::string CellText(const InstanceColumn& column, const InstanceRow& row, std::uint64_t smallest, bool isVerbose) {
  switch (column.cell) {
    case Cell::kController: return row.controller;
    case Cell::kLocation: return row.location;
    case Cell::kSerialNumber: return row.serialNumber;
    case Cell::kKind: return row.kind;
    default: break;
  }
  const std::string text = ShownText(*row.instance, column.property);
  if (column.cell == Cell::kSize && row.bytes) return FormatBytes(*row.bytes, smallest);
  return column.cell == Cell::kState && !isVerbose ? WithoutCode(text) : text;
}

// Aligned figures are easier to compare.
void AlignRight(Table& table, std::size_t column) {
  std::size_t widest = 0;
  for (const auto& row : table.rows) widest = std::max(widest, DisplayWidth(row[column]));
  for (auto& row : table.rows) {
    if (!row[column].empty()) row[column].insert(0, widest - DisplayWidth(row[column]), ' ');
  }
}

}  // namespace

void WriteInstances(std::ostream& out, const QueryHeader& header, std::string_view heading,
                    std::span<const InstanceColumn> columns, const std::vector<InstanceRow>& rows,
                    const CellLevel& level) {
  if (rows.empty()) return;
  const std::uint64_t smallest = SmallestOf(rows);
  Table table;
  table.rows.resize(rows.size());
  for (const InstanceColumn& column : columns) {
    const std::size_t place = table.columns.size();
    table.columns.push_back({std::string(column.title), column.widest, column.least, column.isKept});
    for (std::size_t row = 0; row < rows.size(); ++row) {
      const auto colour = level ? ColourOf(level(row, column.property)) : std::nullopt;
      if (colour) table.colours[{row, place}] = *colour;
      table.rows[row].push_back(CellText(column, rows[row], smallest, header.isVerbose));
    }
    if (column.cell == Cell::kSize) AlignRight(table, place);
  }
  out << heading << '\n';
  WriteTable(out, header.layout, table);
}

}  // namespace hxahost
