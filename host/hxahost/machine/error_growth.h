#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Errors counted on a disk since the baseline.
struct ErrorGrowth {
  std::string text;                // "hard errors: 8, 5 more since 2026-11-20 09:30:00 +01:00 (2.5 a day)"
  std::optional<Finding> finding;  // if they are past their limit
};

// The errors counted on a disk between the two times. Counters that were reset are left out.
std::vector<ErrorGrowth> GrowthOf(const Device& before, const Device& now, const QueryHeader& header);

}  // namespace hxahost
