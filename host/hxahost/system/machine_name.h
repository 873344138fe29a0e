#pragma once

#include <cstddef>

namespace hxahost {

// In bytes. Some formats repeat the name on each line: a long one multiplies the size of the output.
inline constexpr std::size_t kLongestMachineName = 1000;

}  // namespace hxahost
