#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Errors that were counted on a disk since the baseline.
struct ErrorGrowth {
  std::string text;                // "hard errors: 8, 5 more since 2026-11-20 09:30:00 +01:00 (2.5 a day)"
  std::optional<Finding> finding;  // where they are past their limit
};

// What the disk of now counted since it was the one of before. Counters that were set back tell nothing.
std::vector<ErrorGrowth> GrowthOf(const Device& before, const Device& now, const QueryHeader& header);

}  // namespace hxahost
