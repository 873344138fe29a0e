#pragma once

#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Fills in the background operations of the controllers: for the legacy utility from published properties, for the
// others from the text of "getstatus".
void FindOperations(std::vector<Controller>& controllers, const InstanceList& instances);

}  // namespace hxahost
