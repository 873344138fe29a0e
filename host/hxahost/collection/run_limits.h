#pragma once

#include <cstddef>
#include <optional>

namespace hxahost {

inline constexpr std::size_t kMebibyte = std::size_t{1} << 20U;

// Limits for the utilities in one collection.
struct RunLimits {
  std::optional<unsigned> runSeconds;         // of one run; empty: the plug-in's limit, 300
  std::optional<unsigned> collectionSeconds;  // of all runs together
  std::size_t outputBytes = 512 * kMebibyte;  // of all runs together
  bool asksOnce = false;                      // a repeated command is answered from memory
};

}  // namespace hxahost
