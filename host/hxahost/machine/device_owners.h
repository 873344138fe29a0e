#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The controller that an instance belongs to.
struct DeviceOwner {
  std::string number;
  std::string label;      // the number; "3 (arcconf)" or "3 (tool not known)" if controllers of two tools share it
  std::string_view tool;  // that described the instance; "" if it is unknown
};

// By the place of each instance; empty for instances that are not controllers, drives, groups or disks.
std::vector<DeviceOwner> DeviceOwners(const InstanceList& instances);

}  // namespace hxahost
