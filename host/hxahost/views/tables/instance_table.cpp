#include "host/hxahost/views/tables/instance_table.h"

#include <optional>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/views/level_colour.h"

namespace hxahost {

void WriteInstances(std::ostream& out, const Layout& layout, std::string_view heading,
                    std::span<const InstanceColumn> columns, const InstanceList& instances, const CellLevel& level) {
  if (instances.empty()) return;
  Table table;
  for (const InstanceColumn& column : columns) {
    table.columns.push_back({std::string(column.title), column.widest, column.least});
  }
  for (std::size_t row = 0; row < instances.size(); ++row) {
    auto& cells = table.rows.emplace_back();
    for (const InstanceColumn& column : columns) {
      const auto colour = level ? ColourOf(level(row, column.property)) : std::nullopt;
      if (colour) table.colours[{row, cells.size()}] = *colour;
      cells.push_back(ShownText(*instances[row], column.property));
    }
  }
  out << heading << '\n';
  WriteTable(out, layout, table);
}

}  // namespace hxahost
