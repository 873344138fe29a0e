#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Controllers that are there but were not published, as the plug-in does with one whose status says that it has
// failed: those that drives, disks or groups name, and those that only the raw answer of a utility shows.
Findings SilentControllers(const Machine& machine, const InstanceList& instances);

}  // namespace hxahost
