#pragma once

#include <string>
#include <vector>

#include "host/hxacore/windows/handle.h"
#include "host/hxacore/windows/runs.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// A program that was started, with all that it starts in one job.
struct ChildProcess {
  UniqueHandle output;  // where its standard output and standard error arrive; opened for overlapped reading
  TRunJob job;
  UniqueHandle process;
};

// Starts the program with the null device as standard input, and none of the host's handles. Throws TSpawnException,
// also when an earlier run of the program goes on that could not be ended.
HXACORE_API ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments);

// Ends it and all that it has started. Where Windows cannot do so within some seconds, as with one that waits for a
// broken controller, the program is not started again while that is there.
HXACORE_API void EndProcessTree(const std::string& path, ChildProcess& child);

// How reading the output of a program came to its end.
enum class OutputEnd {
  kComplete,  // the program has ended, and nobody can write any more
  kLeftOpen,  // the program has ended; something that it started can still write
  kTooLong,   // the deadline passed
  kTooMuch,   // it wrote more than kOutputLimit bytes
};

// Appends what the program writes, until it has ended. The deadline is a time of GetTickCount64.
OutputEnd CollectOutput(const ChildProcess& child, ULONGLONG deadline, std::string& output);

}  // namespace NKVRHXA20
