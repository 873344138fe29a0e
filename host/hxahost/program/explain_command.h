#pragma once

#include <ostream>
#include <string>

#include "host/hxahost/program/options.h"

namespace hxahost {

// "hxahost explain": collects as a query does and shows where the values of one object come from. Throws ProgramError,
// with status 2 where nothing or more than one object is called so.
void RunExplainCommand(const QueryOptions& options, const std::string& object, std::ostream& out, std::ostream& err);

}  // namespace hxahost
