#pragma once

#include <ostream>
#include <span>
#include <string_view>

#include "host/hxahost/views/tables/instance_table.h"

namespace hxahost {

// A table of instances that belong to no controller's block: versions, statistics, logs.
struct RecordSection {
  std::string_view heading;
  std::span<const std::string_view> classes;
  std::span<const InstanceColumn> columns;
};

std::span<const RecordSection> RecordSections();

// Writes the sections that have an instance.
void WriteRecordSections(std::ostream& out, const Layout& layout, const InstanceList& instances);

}  // namespace hxahost
