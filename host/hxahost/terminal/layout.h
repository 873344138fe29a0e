#pragma once

#include <cstddef>

namespace hxahost {

// What tables are laid out for.
struct Layout {
  std::size_t width = 100;  // in columns; fits a mail, and a file that is read anywhere
  bool hasColours = false;
};

constexpr std::size_t kNarrowestLayout = 40;
constexpr std::size_t kWidestLayout = 1000;

}  // namespace hxahost
