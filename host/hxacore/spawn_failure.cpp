#include "host/hxacore/spawn_failure.h"

#include <fmt/core.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/spawn_result.h"

namespace NKVRHXA20 {

namespace {

std::string EndText(long process) {
  if (process == 0) return "was ended";
  return fmt::format("cannot be ended (process {}; it is not run again before that is gone)", process);
}

}  // namespace

void ThrowNotStarted(const std::string& path, const std::string& reason, bool isThere) {
  throw TSpawnException(isThere ? SpawnFailure::kNotStarted : SpawnFailure::kNotInstalled,
                        fmt::format("\"{}\" cannot be started: {}", path, reason));
}

void ThrowTooLong(const std::string& path, int limitSeconds, long process) {
  throw TSpawnException(process == 0 ? SpawnFailure::kTooLong : SpawnFailure::kNotEnded,
                        fmt::format("\"{}\" {}: it ran longer than {} seconds", path, EndText(process), limitSeconds));
}

void ThrowTooMuchOutput(const std::string& path, long process) {
  throw TSpawnException(SpawnFailure::kTooMuchOutput, fmt::format("\"{}\" {}: it wrote more than {} MiB", path,
                                                                  EndText(process), kOutputLimit >> 20U));
}

}  // namespace NKVRHXA20
