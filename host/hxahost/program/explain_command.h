#pragma once

#include <ostream>
#include <string>

#include "host/hxahost/program/options.h"

namespace hxahost {

// "hxahost explain": collects like a query and writes the sources of one object's values. Throws ProgramError, with
// status 2 if no object or more than one has this name.
void RunExplainCommand(const QueryOptions& options, const std::string& object, std::ostream& out, std::ostream& err);

}  // namespace hxahost
