#pragma once

#include "host/hxahost/machine/cause.h"
#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Fills in the headline of an incident of logical drives and disks, the disks to act on, and what to do, which depends
// on what is still readable and on what runs already.
void DescribeStorage(const Machine& machine, const Cause& cause, Incident& incident);

}  // namespace hxahost
