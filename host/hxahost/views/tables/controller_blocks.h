#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Writes a block for each controller: what it is, its state, its logical drives, disk groups and disks. What belongs
// to a controller that has no instance stands under its number all the same.
void WriteControllerBlocks(std::ostream& out, const QueryHeader& header, const InstanceList& instances);

}  // namespace hxahost
