#pragma once

#include <span>
#include <string_view>

#include "host/hxahost/views/instance_column.h"

namespace hxahost {

// A table of instances that are not in a controller's block: versions, statistics, logs.
struct RecordSection {
  std::string_view heading;
  std::span<const std::string_view> classes;
  std::span<const InstanceColumn> columns;
  bool isOfEvents = false;
};

std::span<const RecordSection> RecordSections();

}  // namespace hxahost
