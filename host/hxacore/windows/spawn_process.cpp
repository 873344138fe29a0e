#include "host/hxacore/operating_system.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

std::string SpawnProcess(const std::string& path, const std::vector<std::string>&, int) { throw THXAException(path); }

}  // namespace NKVRHXA20
