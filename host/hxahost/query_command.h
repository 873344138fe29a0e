#pragma once

#include <ostream>

#include "host/hxahost/options.h"

namespace hxahost {

// "hxahost query": loads the plug-in, queries it, writes what it publishes to the output that the options name (out
// where they name none) and what a person should know meanwhile to err. Changes the working directory. Throws
// ProgramError.
void RunQueryCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
