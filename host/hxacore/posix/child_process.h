#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "host/hxacore/posix/descriptor.h"
#include "host/hxacore/posix/runs.h"

namespace NKVRHXA20 {

// A program that was started, below a keeper (see keeper.h), and the keeper's reports so far.
struct ChildProcess {
  pid_t keeper = -1;
  TDescriptor output;  // receives its standard output and standard error
  TRunSocket reports;
  bool isKept = true;  // the keeper is running
  pid_t process = 0;   // 0: not yet known
  int startFailure = 0;
  std::optional<int> waitStatus;  // of waitpid; empty: it runs, or its end is unknown
};

// Starts the program with the null device as standard input, and none of the host's files. The success of the start is
// known when the program has ended. Throws TSpawnException if the system cannot create another process, or if an
// earlier run of the program could not be ended and still runs.
ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments);

using Deadline = std::chrono::steady_clock::time_point;

// Why reading the output of a program ended.
enum class OutputEnd {
  kComplete,  // the program has ended
  kTooLong,   // the deadline passed
  kTooMuch,   // it wrote more than kOutputLimit bytes
};

// Appends the output of the program until it ends.
OutputEnd CollectOutput(ChildProcess& child, Deadline deadline, std::string& output);

// Ends the program and every process that it started. False: the system could not end one of them within some seconds.
bool EndProcessTree(ChildProcess& child);

}  // namespace NKVRHXA20
