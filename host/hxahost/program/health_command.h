#pragma once

#include <ostream>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/program/options.h"
#include "host/hxahost/system/exit_status.h"

namespace hxahost {

// "hxahost health": collects as a query does, writes what is wrong to the output that the options name (out where they
// name none) and gives the worst of it. Throws ProgramError.
Severity RunHealthCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

// "hxahost status": the same for people, on one screen. Gives kNothingFound where no tool described a controller.
ExitStatus RunStatusCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
