#pragma once

#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// By the place of each instance: what tells its controller from the others. The utilities count their controllers each
// by itself, so controllers of two of them may share a number: "3"; "3 (arcconf)" where they do; "3 (tool not known)"
// where nothing tells which one described the instance. "" for what is no controller, drive, array or disk.
std::vector<std::string> DeviceOwners(const InstanceList& instances);

}  // namespace hxahost
