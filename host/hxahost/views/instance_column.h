#pragma once

#include <cstddef>
#include <string_view>

namespace hxahost {

// What a cell shows.
enum class Cell {
  kProperty,
  kState,         // the property, without the short form that the legacy utility adds: "Critical" of "Critical (CRT)"
  kSize,          // in the unit of its column: "36.4 GB"
  kController,    // that it belongs to: "C3 (arcconf)"
  kLocation,      // of the device: "enclosure 0, slot 8"
  kSerialNumber,  // of the device
  kKind,          // "HDD", "tape", "enclosure"
};

// A column of a table of instances.
struct InstanceColumn {
  std::string_view title;
  std::string_view property;  // under the name under which it is set; "" where the machine model alone knows
  std::size_t widest = 30;
  std::size_t least = 8;  // what it may be narrowed to
  Cell cell = Cell::kProperty;
  bool isKept = false;  // left out last where space is short
};

}  // namespace hxahost
