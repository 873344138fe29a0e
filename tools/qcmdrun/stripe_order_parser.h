#pragma once

#include <string_view>

class CollectedData;
struct ArrayStripeOrder;

namespace qcmdrun {

// Fills the stripe order from the current line and, where the list goes on there, the line after it; the last line
// read is current afterwards. Throws std::out_of_range for a line that begins with the label, so names no array, and
// where the text ends with the line.
void ParseStripeOrder(ArrayStripeOrder& order, CollectedData& text, std::string_view controllerNumber);

}  // namespace qcmdrun
