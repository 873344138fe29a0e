#include "host/hxahost/views/tables/instance_table.h"

#include "host/hxahost/result/property_values.h"

namespace hxahost {

void WriteInstances(std::ostream& out, const Layout& layout, std::string_view heading,
                    std::span<const InstanceColumn> columns, const InstanceList& instances) {
  if (instances.empty()) return;
  Table table;
  for (const InstanceColumn& column : columns) {
    table.columns.push_back({std::string(column.title), column.widest, column.least, column.isState});
  }
  for (const auto& instance : instances) {
    auto& row = table.rows.emplace_back();
    for (const InstanceColumn& column : columns) row.push_back(ShownText(*instance, column.property));
  }
  out << heading << '\n';
  WriteTable(out, layout, table);
}

}  // namespace hxahost
