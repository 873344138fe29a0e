#pragma once

#include <cstddef>
#include <optional>

namespace hxahost {

inline constexpr std::size_t kMebibyte = std::size_t{1} << 20U;

// What the utilities may cost in one collection.
struct RunLimits {
  std::optional<unsigned> runSeconds;         // of one run; none: what the plug-in allows, 300
  std::optional<unsigned> collectionSeconds;  // of all runs together
  std::size_t outputBytes = 512 * kMebibyte;  // of all runs together
  bool asksOnce = false;                      // a command that is asked again is answered from memory
};

}  // namespace hxahost
