#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/terminal/table.h"

namespace hxahost {

// A column of a table of instances.
struct InstanceColumn {
  std::string_view title;
  std::string_view property;  // under the name under which it is set
  std::size_t widest = 30;
  std::size_t least = 8;  // what it may be narrowed to
};

// What a property of the instance in a row says: its colour where the layout has colours.
using CellLevel = std::function<Level(std::size_t row, std::string_view property)>;

// Writes the heading and one row for each instance; nothing at all where there is no instance.
void WriteInstances(std::ostream& out, const Layout& layout, std::string_view heading,
                    std::span<const InstanceColumn> columns, const InstanceList& instances,
                    const CellLevel& level = {});

}  // namespace hxahost
