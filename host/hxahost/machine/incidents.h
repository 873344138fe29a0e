#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Sums up the findings of the machine by their causes, worst first.
void FindIncidents(Machine& machine, const InstanceList& instances);

}  // namespace hxahost
