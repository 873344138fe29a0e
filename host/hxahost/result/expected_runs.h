#pragma once

#include <cstddef>

#include "host/hxahost/result/tool_run.h"

namespace hxahost {

// Estimates the number of runs of a whole collection from the runs so far. A controller number without an answer counts
// as refused, as most numbers are.
std::size_t ExpectedRuns(const ToolRunList& runs);

}  // namespace hxahost
