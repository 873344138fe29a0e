#include "host/hxacore/spawn_failure.h"

#include "host/hxacore/operating_system.h"
#include "host/hxacore/spawn_result.h"

namespace NKVRHXA20 {

void ThrowNotStarted(const std::string& path, const std::string& reason) {
  throw TSpawnException(SpawnFailure::kNotStarted, "\"" + path + "\" cannot be started: " + reason);
}

void ThrowTooLong(const std::string& path, int limitSeconds) {
  throw TSpawnException(SpawnFailure::kTooLong,
                        "\"" + path + "\" was ended: it ran longer than " + std::to_string(limitSeconds) + " seconds");
}

void ThrowTooMuchOutput(const std::string& path) {
  throw TSpawnException(SpawnFailure::kTooMuchOutput, "\"" + path + "\" was ended: it wrote more than " +
                                                          std::to_string(kOutputLimit >> 20U) + " MiB");
}

}  // namespace NKVRHXA20
