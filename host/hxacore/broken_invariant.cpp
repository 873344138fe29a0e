#include "plugin/host_interface/assertion_failed.h"

namespace NKVRHXA20 {

TBrokenInvariant::TBrokenInvariant(const std::string& message) : std::logic_error(message) {}
TBrokenInvariant::~TBrokenInvariant() = default;

void ReportBrokenInvariant(const char* expression, const char* function, const char* file, long line) {
  throw TBrokenInvariant(std::string("assertion failed: ") + expression + " in " + function + " (" + file + ":" +
                         std::to_string(line) + ")");
}

}  // namespace NKVRHXA20
