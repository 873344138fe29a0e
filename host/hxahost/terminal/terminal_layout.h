#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "host/hxahost/terminal/layout.h"

namespace hxahost {

// What the command line says of how tables are shown.
struct LayoutWishes {
  bool isFile = false;  // they go to a file, not to standard output
  std::optional<std::size_t> width = {};
  std::string_view color = "auto";  // or "always", "never"
  bool isAscii = false;
};

// The layout of the tables: the terminal's where they go to one and no wish says otherwise.
Layout LayoutFor(const LayoutWishes& wishes);

// Whether the tables are to be ASCII alone: asked for, or the terminal shows nothing else.
bool IsAsciiOnly(const LayoutWishes& wishes);

// The columns of the terminal that standard error goes to.
std::size_t ProgressWidth();

}  // namespace hxahost
