#pragma once

#include <cstddef>
#include <string_view>

namespace hxahost {

// A column of a table of instances.
struct InstanceColumn {
  std::string_view title;
  std::string_view property;  // under the name under which it is set
  std::size_t widest = 30;
  std::size_t least = 8;  // what it may be narrowed to
};

}  // namespace hxahost
