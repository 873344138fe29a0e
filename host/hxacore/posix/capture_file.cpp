#include "host/hxacore/operating_system.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

std::string CaptureFile(const std::string& path) { throw THXAException(path); }

}  // namespace NKVRHXA20
