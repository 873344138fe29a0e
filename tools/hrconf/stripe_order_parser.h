#pragma once

#include <string_view>

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace hrconf {

// Fills the stripe order from the current line and all lines of the list below it, and leaves the scanner on the last
// of them.
void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber,
                      std::string_view driveNumber);

}  // namespace hrconf
