#include "host/hxacore/operating_system.h"

namespace NKVRHXA20 {

std::filesystem::path PathOf(const std::string& text) { return text; }

}  // namespace NKVRHXA20
