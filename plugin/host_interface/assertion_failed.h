#pragma once

#include <stdexcept>
#include <string>

#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// Thrown when an invariant between host and plug-in is broken: a bug, not a failed service.
class HXACORE_API TBrokenInvariant : public std::logic_error {
 public:
  explicit TBrokenInvariant(const std::string& message);
  ~TBrokenInvariant() override;
};

// Where boost::assertion_failed of every binary ends. Throws TBrokenInvariant with the expression that did not hold
// ("px != 0" for a null pointer that was followed) and the place.
[[noreturn]] HXACORE_API void ReportBrokenInvariant(const char* expression, const char* function, const char* file,
                                                    long line);

}  // namespace NKVRHXA20
