#pragma once

#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// The object that a version, a count or a log record is about. The machine must outlive it.
struct RecordOwner {
  std::string label;               // as Controller::label; "3 (tool not known)" if it is ambiguous; "" without a number
  const Device* device = nullptr;  // whose firmware it is; null if it is not known
};

// By the place of each instance. Records contain only the number of their controller. If controllers share the number,
// the class, the device or the order of publication decides.
std::vector<RecordOwner> RecordOwners(const Machine& machine, const InstanceList& instances);

}  // namespace hxahost
