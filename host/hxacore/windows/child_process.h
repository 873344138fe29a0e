#pragma once

#include <string>
#include <vector>

#include "host/hxacore/windows/handle.h"
#include "host/hxacore/windows/runs.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// A program that was started, with every process that it starts in one job.
struct ChildProcess {
  UniqueHandle output;  // receives its standard output and standard error; opened for overlapped reading
  TRunJob job;
  UniqueHandle process;
};

// Starts the program with the null device as standard input, and none of the host's handles. Throws TSpawnException,
// also if an earlier run of the program could not be ended and still runs.
HXACORE_API ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments);

// Ends the program and every process that it started. If Windows cannot do so within some seconds, for example because
// one waits for a broken controller, the program is not started again while that process exists.
HXACORE_API void EndProcessTree(const std::string& path, ChildProcess& child);

// Why reading the output of a program ended.
enum class OutputEnd {
  kComplete,  // the program has ended, and no process can write any more
  kLeftOpen,  // the program has ended; a process that it started can still write
  kTooLong,   // the deadline passed
  kTooMuch,   // it wrote more than kOutputLimit bytes
};

// Appends the output of the program until it ends. The deadline is a time of GetTickCount64.
OutputEnd CollectOutput(const ChildProcess& child, ULONGLONG deadline, std::string& output);

}  // namespace NKVRHXA20
