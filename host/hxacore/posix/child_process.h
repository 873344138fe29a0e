#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "host/hxacore/posix/descriptor.h"

namespace NKVRHXA20 {

// A program that was started, leader of a process group of its own. It stays a process of the system, if only as a
// zombie, until it is reaped: its number cannot come to mean another process before.
struct ChildProcess {
  pid_t pid = -1;
  TDescriptor output;  // where its standard output and standard error arrive
  TDescriptor end;     // readable when it has ended; -1 where the kernel has no such thing
  std::string mark;    // the environment variable that it and all that it starts have, and no other process
};

// Starts the program with the null device as standard input, and none of the host's files. Throws THXAException.
ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments);

using Deadline = std::chrono::steady_clock::time_point;

// How reading the output of a program came to its end.
enum class OutputEnd {
  kComplete,  // the program has ended, and nobody can write any more
  kLeftOpen,  // the program has ended; something that it started can still write
  kTooLong,   // the deadline passed
  kTooMuch,   // it wrote more than kOutputLimit bytes
};

// Appends what the program writes, until it has ended.
OutputEnd CollectOutput(const ChildProcess& child, Deadline deadline, std::string& output);

// Whether the program has ended.
bool HasEnded(const ChildProcess& child);

// Whether its number may mean another process already: somebody else has reaped it, or the system did because the
// host's parent ignores SIGCHLD.
bool IsReaped(const ChildProcess& child);

// Waits for the program's end, lets go of its number and says how it ended, as waitpid does; none where nobody knows.
std::optional<int> Reap(const ChildProcess& child);

}  // namespace NKVRHXA20
