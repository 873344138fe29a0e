#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Compares the machine with the baseline that the header names, if it names one. Findings: objects that are missing,
// and errors that grew past their limits. Each missing object, and each change for information, is added as an incident
// to the changes of the machine, whose objects are complete. The findings about the tools name the tools that did not
// answer: the state of their objects is unknown, not missing.
Findings BaselineFindings(Machine& machine, const QueryHeader& header, const Findings& aboutTools);

// The same for the numbers of controllers and disks that the header expects.
Findings ExpectationFindings(Machine& machine, const QueryHeader& header);

}  // namespace hxahost
