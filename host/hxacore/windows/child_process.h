#pragma once

#include <string>
#include <vector>

#include "host/hxacore/windows/handle.h"

namespace NKVRHXA20 {

// A program that was started, with all that it starts in one job. Closing the job ends them.
struct ChildProcess {
  UniqueHandle output;  // where its standard output and standard error arrive; opened for overlapped reading
  UniqueHandle job;
  UniqueHandle process;
};

// Starts the program with the null device as standard input, and none of the host's handles. Throws THXAException.
ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments);

// Ends it and all that it has started, and waits until nothing is left of them; gives up after some seconds on one
// that Windows cannot end, as one that waits for a broken controller.
void EndProcessTree(const ChildProcess& child);

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
