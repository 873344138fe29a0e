#pragma once

#include <string_view>

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace arcconf {

// Fills the stripe order from the current line and at most one line below it, and leaves the scanner on the last line
// of the two. A current line that lists no channels and devices gives the controller's number alone.
void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber,
                      std::string_view driveNumber);

}  // namespace arcconf
