#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Writes a block for each controller: model, state, logical drives, disk groups and disks. Objects of a controller
// without an instance are listed under its number, too.
void WriteControllerBlocks(std::ostream& out, const QueryHeader& header, const InstanceList& instances,
                           const Machine& machine);

}  // namespace hxahost
