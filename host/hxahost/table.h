#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace hxahost {

// No line of the table view is wider: it fits a terminal and a mail.
constexpr std::size_t kViewWidth = 100;

// A table of texts that are printable already. A row may be shorter than the titles.
struct Table {
  std::vector<std::string> titles;
  std::vector<std::size_t> widest;  // of each column; what is longer is cut
  std::vector<std::vector<std::string>> rows;
};

// Writes the table, indented by two columns. A column in which no row has a text is left out. Where it all is wider
// than the view, the widest columns are narrowed first; what is still too wide is cut at the right.
void WriteTable(std::ostream& out, const Table& table);

}  // namespace hxahost
