#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// What is different from the baseline that the header names, if it names one, as findings: objects that are missing and
// errors that grew past their limits. Each missing object, and what is for information, becomes an incident among the
// changes of the machine, whose objects are known. The findings about the tools say which of them did not answer: what
// those describe is not known rather than missing.
Findings BaselineFindings(Machine& machine, const QueryHeader& header, const Findings& aboutTools);

// The same of the numbers of controllers and disks that the header expects.
Findings ExpectationFindings(Machine& machine, const QueryHeader& header);

}  // namespace hxahost
