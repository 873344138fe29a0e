#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include "host/hxahost/fleet/fleet.h"
#include "host/hxahost/fleet/fleet_inputs.h"
#include "host/hxahost/result/limits.h"

namespace hxahost {

// The file names of the reports, by machine: all different, even without regard to case.
std::map<std::string, std::string> PageNames(const Fleet& fleet);

// Writes the report of the newest result of each machine into the folder, which is created if it does not exist. Throws
// ProgramError if a report cannot be written.
void WritePages(FleetInputs& inputs, const Limits& limits, const Fleet& fleet, const std::filesystem::path& folder);

// The path with which a page in one folder links to another folder.
std::string LinkBetween(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace hxahost
