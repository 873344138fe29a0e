#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Controllers that exist but were not published, as the plug-in leaves out a controller whose status is "Failed":
// those that drives, disks or groups name, and those that only the raw answer of a utility shows.
Findings SilentControllers(const Machine& machine, const InstanceList& instances);

}  // namespace hxahost
