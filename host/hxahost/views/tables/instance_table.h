#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <span>
#include <string_view>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/views/instance_column.h"

namespace hxahost {

// What a property of the instance in a row says: its colour where the layout has colours.
using CellLevel = std::function<Level(std::size_t row, std::string_view property)>;

// Writes the heading and one row for each instance; nothing at all where there is no instance.
void WriteInstances(std::ostream& out, const Layout& layout, std::string_view heading,
                    std::span<const InstanceColumn> columns, const InstanceList& instances,
                    const CellLevel& level = {});

}  // namespace hxahost
