#pragma once

#include <string>
#include <string_view>

#include "collect/line_scanner.h"
#include "collect/records.h"

// Lists of devices that the tools print after a colon and, where they are long, on the lines below.

// Moves to the next line. One that begins with a digit goes on with the list and is appended to it, one blank between
// the two; any other is left for the next reader. Returns whether the list went on.
bool ContinueList(CollectedData& text, std::string& list);

// The identifier of a logical drive's stripe order. Nothing is between the parts.
std::string StripeOrderId(const ArrayStripeOrder& order, std::string_view logicalDriveNumber);
