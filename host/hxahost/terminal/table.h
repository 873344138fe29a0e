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
  std::size_t least = 8;    // what the column is narrowed to at most, to make room for others
  bool isKept = false;      // left out last, and not narrowed below what most of its cells need
};

// A table of texts that are printable already. A row may be shorter than the columns.
struct Table {
  std::vector<TableColumn> columns;
  std::vector<std::vector<std::string>> rows;
  std::map<std::pair<std::size_t, std::size_t>, Colour> colours = {};  // of cells, by row and column
};

// Writes the table, indented by two columns. A column in which no row has a text is left out. Where it all is wider
// than the layout, the widest columns are narrowed; where that does not do, columns are left out from the right, those
// that are kept last, and an ellipsis after the titles says so.
void WriteTable(std::ostream& out, const Layout& layout, const Table& table);

}  // namespace hxahost
