#pragma once

#include <ostream>

#include "host/hxahost/program/options.h"
#include "host/hxahost/system/exit_status.h"

namespace hxahost {

// "hxahost fleet": reads results and bundles of many machines and shows them together. Returns kNothingFound if they
// contain no machine. Throws ProgramError.
ExitStatus RunFleetCommand(const FleetCommandOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
