#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include "host/hxahost/fleet/fleet.h"
#include "host/hxahost/fleet/fleet_inputs.h"
#include "host/hxahost/result/limits.h"

namespace hxahost {

// The names of the files of the reports, by machine: all different, also where letters are of one case.
std::map<std::string, std::string> PageNames(const Fleet& fleet);

// Writes the report of the newest result of each machine into the folder, which is made where it is not there. Throws
// ProgramError where one cannot be written.
void WritePages(FleetInputs& inputs, const Limits& limits, const Fleet& fleet, const std::filesystem::path& folder);

// What a page in one folder links to another folder with.
std::string LinkBetween(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace hxahost
