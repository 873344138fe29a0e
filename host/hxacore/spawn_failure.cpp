#include "host/hxacore/spawn_failure.h"

#include "host/hxacore/operating_system.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

void ThrowNotStarted(const std::string& path, const std::string& reason) {
  throw THXAException("\"" + path + "\" cannot be started: " + reason);
}

void ThrowTooLong(const std::string& path, int limitSeconds) {
  throw THXAException("\"" + path + "\" was ended: it ran longer than " + std::to_string(limitSeconds) + " seconds");
}

void ThrowTooMuchOutput(const std::string& path) {
  throw THXAException("\"" + path + "\" was ended: it wrote more than " + std::to_string(kOutputLimit >> 20U) + " MiB");
}

}  // namespace NKVRHXA20
