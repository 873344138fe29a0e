#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

THXAException::THXAException(const std::string& message) : std::runtime_error(message) {}
THXAException::~THXAException() = default;

}  // namespace NKVRHXA20
