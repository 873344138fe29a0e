#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "host/hxahost/fleet/fleet.h"
#include "host/hxahost/fleet/fleet_inputs.h"
#include "host/hxahost/fleet/judged_result.h"
#include "host/hxahost/result/limits.h"

namespace hxahost {

// How many inputs are read at a time.
std::size_t Processors();

// What a format writes of each result as it comes; empty where the whole alone counts.
struct RowWriters {
  void (*result)(std::ostream& out, const JudgedResult& judged) = nullptr;
  void (*damaged)(std::ostream& out, const DamagedFile& file) = nullptr;
};

// Reads all inputs, one at a time on each processor. Their rows go to out in the order of the inputs; without rows,
// what the whole needs goes to the fleet. Gives how many results there were. begin is called with each input, on this
// thread.
std::size_t ReadFleet(FleetInputs& inputs, const Limits& limits, const RowWriters& rows, std::ostream& out,
                      Fleet& fleet, const std::function<void(const std::string& name)>& begin);

}  // namespace hxahost
