#pragma once

#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "host/hxahost/terminal/colour.h"
#include "host/hxahost/terminal/layout.h"

namespace hxahost {

struct TableColumn {
  std::string title;
  std::size_t widest = 30;  // a longer text is cut
  std::size_t least = 8;    // the smallest width when the column is narrowed to make room for others
  bool isKept = false;      // left out last, and not narrowed below the width that most of its cells need
};

// A table of printable texts. A row may be shorter than the columns.
struct Table {
  std::vector<TableColumn> columns;
  std::vector<std::vector<std::string>> rows;
  std::map<std::pair<std::size_t, std::size_t>, Colour> colours = {};  // of cells, by row and column
};

// Writes the table, indented by two columns. A column without any text is left out. If the table is wider than the
// layout, the widest columns are narrowed; if it is still too wide, columns are left out from the right, kept ones
// last, and an ellipsis after the titles shows it.
void WriteTable(std::ostream& out, const Layout& layout, const Table& table);

}  // namespace hxahost
