#pragma once

#include <cstddef>

#include "host/hxahost/result/tool_run.h"

namespace hxahost {

// How many runs of tools a collection will have needed, as far as those show that it has made. A controller number of
// which nothing is known yet counts as one that is refused, which most are.
std::size_t ExpectedRuns(const ToolRunList& runs);

}  // namespace hxahost
