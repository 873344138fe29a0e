#pragma once

#include <cstddef>

namespace hxahost {

// The width and colours for which tables are formatted.
struct Layout {
  std::size_t width = 100;  // in columns; fits a mail, and a file for any reader
  bool hasColours = false;
};

constexpr std::size_t kNarrowestLayout = 40;
constexpr std::size_t kWidestLayout = 1000;

}  // namespace hxahost
