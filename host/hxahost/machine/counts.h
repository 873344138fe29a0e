#pragma once

#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Fills in the numbers that the controllers count: errors on devices, bad stripes of logical drives.
void FindCounts(std::vector<Controller>& controllers, const InstanceList& instances);

}  // namespace hxahost
