#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Writes the sections that have an instance: those of events, and with --all the others.
void WriteRecordSections(std::ostream& out, const QueryHeader& header, const InstanceList& instances,
                         const Machine& machine);

}  // namespace hxahost
