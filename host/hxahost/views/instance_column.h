#pragma once

#include <cstddef>
#include <string_view>

namespace hxahost {

// The content of a cell.
enum class Cell {
  kProperty,
  kState,         // the property, without the short form that the legacy utility adds: "Critical" of "Critical (CRT)"
  kSize,          // in the unit of its column: "36.4 GB"
  kController,    // its controller: "C3 (arcconf)"
  kLocation,      // of the device: "enclosure 0, slot 8"
  kSerialNumber,  // of the device
  kKind,          // "HDD", "tape", "enclosure"
};

// A column of a table of instances.
struct InstanceColumn {
  std::string_view title;
  std::string_view property;  // as it is declared; "" if only the machine model contains the value
  std::size_t widest = 30;
  std::size_t least = 8;  // the smallest width
  Cell cell = Cell::kProperty;
  bool isKept = false;  // left out last if the layout is too narrow
};

}  // namespace hxahost
