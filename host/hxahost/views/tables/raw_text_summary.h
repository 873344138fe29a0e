#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Writes how many commands each tool was given, how many of them it answered and with how many lines, and how long the
// RAID manager's log is. The texts themselves are for programs.
void WriteRawTextSummary(std::ostream& out, const Layout& layout, const InstanceList& instances);

}  // namespace hxahost
