#pragma once

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace hrconf {

// Fills the controller from the answer to "getconfig N al" and its versions, and marks it as parsed. A text without
// "Controller information" gives the number alone and no mark. Moves the scanner.
void ParseController(ZenxController& controller, CollectedData& text, unsigned controllerNumber,
                     const ZenxHrConfBios& versions);

}  // namespace hrconf
