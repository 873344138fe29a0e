#pragma once

#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Fills in what the controllers do in the background: from the published properties of the legacy ones, from the text
// of "getstatus" of the others.
void FindOperations(std::vector<Controller>& controllers, const InstanceList& instances);

}  // namespace hxahost
