#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Findings with one cause, and the objects that they are about.
struct Cause {
  std::size_t controller = 0;         // place in Machine::controllers; their number if it is about no controller
  std::vector<std::size_t> drives;    // of the controller, in their order
  std::vector<std::size_t> devices;   // of the controller, in their order
  std::vector<std::size_t> findings;  // places in Machine::findings, in their order; never empty
};

// Every finding is in exactly one cause. A failed disk, the logical drives that it degrades, its counters and those of
// its controller have one cause.
std::vector<Cause> FindCauses(const Machine& machine, const InstanceList& instances);

// Whether the device has a finding with this effect.
bool HasEffect(const Machine& machine, const Object& object, Effect effect);

// Whether the device has failed or is missing.
bool IsFailed(const Machine& machine, const Device& device);

// Whether a rebuild onto the device is running.
bool IsRebuilding(const Device& device);

}  // namespace hxahost
