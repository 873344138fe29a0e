#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "host/hxahost/fleet/fleet.h"
#include "host/hxahost/fleet/fleet_inputs.h"
#include "host/hxahost/fleet/judged_result.h"
#include "host/hxahost/result/limits.h"

namespace hxahost {

// The number of inputs that are read at a time.
std::size_t Processors();

// Write the rows of each result as soon as it is read; empty for formats that need the whole fleet.
struct RowWriters {
  void (*result)(std::ostream& out, const JudgedResult& judged) = nullptr;
  void (*damaged)(std::ostream& out, const DamagedFile& file) = nullptr;
};

// Reads all inputs, one at a time on each processor. Their rows go to out in the order of the inputs; without rows, the
// facts about each machine go to the fleet. Returns the number of results. begin is called with each input, on this
// thread.
std::size_t ReadFleet(FleetInputs& inputs, const Limits& limits, const RowWriters& rows, std::ostream& out,
                      Fleet& fleet, const std::function<void(const std::string& name)>& begin);

}  // namespace hxahost
