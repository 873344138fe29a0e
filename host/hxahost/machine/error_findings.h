#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Errors that utilities count on disks, disks that transfer too slowly, and logged messages about batteries: each a
// warning from its limit on.
Findings ErrorFindings(const QueryHeader& header, const InstanceList& instances);

}  // namespace hxahost
