#pragma once

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace hrconf {

// Fills the versions from the answer to "getversion N". An answer that ends too early is logged; what was read by then
// is kept.
void ParseVersion(ZenxHrConfBios& versions, CollectedData& text);

}  // namespace hrconf
