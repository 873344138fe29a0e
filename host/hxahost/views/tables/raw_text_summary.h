#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Writes for each tool the number of commands, of answers and of their lines, and the length of the RAID manager's
// log. The texts themselves are for programs.
void WriteRawTextSummary(std::ostream& out, const Layout& layout, const InstanceList& instances);

}  // namespace hxahost
