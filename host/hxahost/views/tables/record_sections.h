#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Writes the sections that have an instance: those of events, and the others where all is to be shown.
void WriteRecordSections(std::ostream& out, const QueryHeader& header, const InstanceList& instances,
                         const Machine& machine);

}  // namespace hxahost
