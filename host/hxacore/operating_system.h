#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "host/hxacore/spawn_result.h"
#include "plugin/host_interface/date_time.h"
#include "plugin/host_interface/export.h"

// The calls of the operating system that the host needs; one file for each subject in posix/ and in windows/.
namespace NKVRHXA20 {

// See TOSSpecific::SpawnProcess. Standard input of the program is the null device; its environment is the host's with
// the C locale. Throws TSpawnException with path and reason if it cannot be started, exceeds the limit, or writes more
// than kOutputLimit bytes. No process that it started remains, however the program ends, and even if this process ends
// first. If the system cannot end a process within kPatience, the exception names it; as long as it exists, its program
// is not started again.
SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds);

constexpr std::size_t kOutputLimit = std::size_t{64} << 20U;
constexpr std::chrono::seconds kPatience{5};

// Ends the programs that SpawnProcess runs in other threads, with every process that they started, and waits until they
// are gone, at most kPatience. No program is started afterwards. Call it before the process ends.
HXACORE_API void StopRuns();

// The path that plug-ins mean by the text.
std::filesystem::path PathOf(const std::string& text);

std::string MachineName();

// The local time with its offset from UTC; UTC where the offset has more minutes than a CIM date and time can show.
TCIMDateTime LocalTime();

}  // namespace NKVRHXA20
