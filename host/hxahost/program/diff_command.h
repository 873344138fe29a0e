#pragma once

#include <ostream>

#include "host/hxahost/program/options.h"

namespace hxahost {

// "hxahost diff": shows what is different between two results. Gives the exit status: 0 nothing, 1 something. Throws
// ProgramError with status 2 for everything that keeps it from telling.
int RunDiffCommand(const DiffOptions& options, std::ostream& out);

}  // namespace hxahost
