#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Logical drives and devices that a utility lists and the plug-in does not publish, as it loses its place in a report
// with lines that it does not expect. One finding for each controller.
Findings UnreadObjects(const Machine& machine, const QueryHeader& header, const InstanceList& instances);

}  // namespace hxahost
