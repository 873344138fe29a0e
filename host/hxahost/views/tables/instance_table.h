#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/views/instance_column.h"

namespace hxahost {

// An instance with its values from the machine model. Texts are printable.
struct InstanceRow {
  const NKVRHXA20::TPublishedInstance* instance = nullptr;
  std::string controller = {};  // "C3 (arcconf)"
  std::string location = {};
  std::string serialNumber = {};
  std::string kind = {};
  std::optional<std::uint64_t> bytes = {};
};

// The level of a property of the instance in a row: it decides the colour if the layout has colours.
using CellLevel = std::function<Level(std::size_t row, std::string_view property)>;

// Writes the heading and the rows; nothing if there are no rows.
void WriteInstances(std::ostream& out, const QueryHeader& header, std::string_view heading,
                    std::span<const InstanceColumn> columns, const std::vector<InstanceRow>& rows,
                    const CellLevel& level = {});

}  // namespace hxahost
