#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "host/hxacore/posix/descriptor.h"
#include "host/hxacore/posix/runs.h"

namespace NKVRHXA20 {

// A program that was started, below a keeper (see keeper.h), and what the keeper has said of it until now.
struct ChildProcess {
  pid_t keeper = -1;
  TDescriptor output;  // where its standard output and standard error arrive
  TRunSocket reports;
  bool isKept = true;  // the keeper has not ended
  pid_t process = 0;   // 0: not known yet
  int startFailure = 0;
  std::optional<int> waitStatus;  // how it ended, as waitpid says; none: it runs, or nobody knows
};

// Starts the program with the null device as standard input, and none of the host's files. Whether that succeeds is
// known when it has ended. Throws TSpawnException when the system has no room for another process, and when an earlier
// run of the program goes on that could not be ended.
ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments);

using Deadline = std::chrono::steady_clock::time_point;

// How reading the output of a program came to its end.
enum class OutputEnd {
  kComplete,  // the program has ended
  kTooLong,   // the deadline passed
  kTooMuch,   // it wrote more than kOutputLimit bytes
};

// Appends what the program writes, until it has ended.
OutputEnd CollectOutput(ChildProcess& child, Deadline deadline, std::string& output);

// Ends the program and all that it has started. False: the system could not end one of them within some seconds.
bool EndProcessTree(ChildProcess& child);

}  // namespace NKVRHXA20
