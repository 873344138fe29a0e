#pragma once

#include <ostream>

#include "host/hxahost/program/options.h"

namespace hxahost {

// "hxahost diff": writes the differences between two results. Returns the exit status: 0 equal, 1 different. Throws
// ProgramError with status 2 if the comparison fails.
int RunDiffCommand(const DiffOptions& options, std::ostream& out);

}  // namespace hxahost
