#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "host/hxacore/spawn_result.h"
#include "plugin/host_interface/date_time.h"
#include "plugin/host_interface/export.h"

// What the host asks of the operating system; one file per subject in posix/ and in windows/.
namespace NKVRHXA20 {

// See TOSSpecific::SpawnProcess. Standard input of the program is the null device; its environment is the host's with
// the C locale. Throws TSpawnException with path and reason when it cannot be started, when the limit passes, and when
// it writes more than kOutputLimit bytes. Nothing that it started is left running, in whichever way it ends, and also
// where this process ends meanwhile. One that the system cannot end within kPatience is named in the exception; as long
// as it is there, its program is not started again.
SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds);

constexpr std::size_t kOutputLimit = std::size_t{64} << 20U;
constexpr std::chrono::seconds kPatience{5};

// Ends what SpawnProcess runs in other threads, with all that it has started, and waits until it is gone, kPatience at
// most. No program is started any more. To be called before the process ends.
HXACORE_API void StopRuns();

// The path that plug-ins name by the text.
std::filesystem::path PathOf(const std::string& text);

std::string MachineName();

// The local time with its offset from UTC.
TCIMDateTime LocalTime();

}  // namespace NKVRHXA20
