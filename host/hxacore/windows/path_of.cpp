#include "host/hxacore/operating_system.h"
#include "host/hxacore/windows/wide_text.h"

namespace NKVRHXA20 {

std::filesystem::path PathOf(const std::string& text) { return ToWide(text); }

}  // namespace NKVRHXA20
