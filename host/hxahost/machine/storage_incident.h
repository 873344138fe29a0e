#pragma once

#include "host/hxahost/machine/cause.h"
#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Fills in the headline of an incident of logical drives and disks, the disks to act on, and the action, which depends
// on the data that is still readable and on operations that are already running.
void DescribeStorage(const Machine& machine, const Cause& cause, Incident& incident);

}  // namespace hxahost
