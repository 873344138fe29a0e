#pragma once

#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// What a version, a count or a record of a log is about. The machine must outlive it.
struct RecordOwner {
  std::string label;  // as Controller::label; "3 (tool not known)" where nothing tells; "" without a number
  const Device* device = nullptr;  // of which it is the firmware; none where it is not known
};

// By the place of each instance. Records carry the number of their controller alone, so where controllers share it the
// class, the device or the order of publication tells whose they are.
std::vector<RecordOwner> RecordOwners(const Machine& machine, const InstanceList& instances);

}  // namespace hxahost
