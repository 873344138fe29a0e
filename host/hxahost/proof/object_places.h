#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/machine/tool_texts.h"

// The lines of the tools' texts that describe each object.
namespace hxahost {

// Lines of one text, [first, end).
struct Place {
  const ToolText* text = nullptr;
  std::size_t first = 0;
  std::size_t end = 0;
  std::optional<std::size_t> heading = {};
};

// The lines of each instance, by its place: for drives, groups and devices their own lines; for controllers and their
// software all texts about the controller; for counters and log records the row (an empty range if no row belongs to
// them). Empty if there are no such lines. The texts must outlive the result.
std::vector<std::vector<Place>> FindPlaces(const Machine& machine, const InstanceList& instances,
                                           const std::vector<ToolText>& texts);

// A class whose instances are rows of an answer.
struct RowClass {
  std::string_view className;
  ToolCommand command;          // empty: the rows are in the log of the RAID manager
  std::string_view controller;  // the property with its number; "" if the row contains the tool's own number
  std::span<const std::string_view> columns;  // in the order of the row
  bool isMadeWithoutRows;                     // an answer without rows produces an instance, too
};

// Null for a class that has no rows.
const RowClass* FindRowClass(std::string_view className);

}  // namespace hxahost
