#pragma once

#include <string>
#include <vector>

#include "host/hxacore/spawn_result.h"
#include "plugin/host_interface/date_time.h"

// What the host asks of the operating system; one file per subject in posix/ and in windows/.
namespace NKVRHXA20 {

// See TOSSpecific::SpawnProcess. Standard input of the program is the null device; its environment is the host's with
// the C locale (and, on POSIX systems, one variable more, ZENX_RUN_..., by which the processes of a run are found).
// Throws TSpawnException with path and reason when it cannot be started, when the limit passes, and when it writes more
// than kOutputLimit bytes; nothing that it started is left running then. When the program has ended while something
// that it started still holds its output, that is ended too, and what was written by then is returned.
SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds);

constexpr std::size_t kOutputLimit = std::size_t{64} << 20U;

// The bytes of a file. Throws THXAException with path and reason.
std::string CaptureFile(const std::string& path);

std::string MachineName();

// The local time with its offset from UTC.
TCIMDateTime LocalTime();

}  // namespace NKVRHXA20
