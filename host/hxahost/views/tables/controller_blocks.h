#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Writes a block for each controller: what it is, its state, its logical drives, disk groups and disks. What belongs
// to a controller that has no instance is listed under its number all the same.
void WriteControllerBlocks(std::ostream& out, const QueryHeader& header, const InstanceList& instances,
                           const Machine& machine);

}  // namespace hxahost
