#include "host/hxacore/spawn_failure.h"

#include <fmt/core.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/spawn_result.h"

namespace NKVRHXA20 {

void ThrowNotStarted(const std::string& path, const std::string& reason) {
  throw TSpawnException(SpawnFailure::kNotStarted, fmt::format("\"{}\" cannot be started: {}", path, reason));
}

void ThrowTooLong(const std::string& path, int limitSeconds) {
  throw TSpawnException(SpawnFailure::kTooLong,
                        fmt::format("\"{}\" was ended: it ran longer than {} seconds", path, limitSeconds));
}

void ThrowTooMuchOutput(const std::string& path) {
  throw TSpawnException(SpawnFailure::kTooMuchOutput,
                        fmt::format("\"{}\" was ended: it wrote more than {} MiB", path, kOutputLimit >> 20U));
}

}  // namespace NKVRHXA20
