#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "host/hxahost/terminal/layout.h"

namespace hxahost {

// The options of the command line for the layout of tables.
struct LayoutWishes {
  bool isFile = false;  // they go to a file, not to standard output
  std::optional<std::size_t> width = {};
  std::string_view color = "auto";  // or "always", "never"
  bool isAscii = false;
};

// The layout of the tables: that of the terminal if they go to one and no option overrides it.
Layout LayoutFor(const LayoutWishes& wishes);

// Whether tables must be ASCII: by an option, or because the terminal shows nothing else.
bool IsAsciiOnly(const LayoutWishes& wishes);

// The width in columns of the terminal that standard error goes to.
std::size_t ProgressWidth();

}  // namespace hxahost
