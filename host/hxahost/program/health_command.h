#pragma once

#include <ostream>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/program/options.h"
#include "host/hxahost/system/exit_status.h"

namespace hxahost {

// "hxahost health": collects like a query, writes the findings to the output in the options (by default to out) and
// returns the worst severity. Throws ProgramError.
Severity RunHealthCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

// "hxahost status": the same for people, on one screen. Returns kNothingFound if no tool described a controller.
ExitStatus RunStatusCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
