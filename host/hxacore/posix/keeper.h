#pragma once

#include <csignal>

namespace NKVRHXA20 {

// The process between the host and a program that it runs. Every process that the program starts becomes a child of the
// keeper when its parent ends, whatever its session, group and files. The keeper ends when none of them is left. It
// ends them all at the host's request, or when the host has ended.

// A report of the keeper to the host, each in a message of its own. When the keeper has ended, the host reads the end
// of the file.
struct KeeperReport {
  enum Kind { kStarted, kNotStarted, kEnded } kind;
  int value;  // the program's process; the error; the status of waitpid
};

// The keeper's data, prepared in advance: it is forked from a process that may have threads, so it allocates nothing.
struct KeptProgram {
  const char* path;
  char* const* arguments;
  char* const* environment;
  int output;  // for its standard output and standard error
  int host;    // a socket for reports; the host shuts down its own end to end the program
};

// The keeper: runs in a process that was just forked, with all signals blocked.
[[noreturn]] void Keep(const KeptProgram& program);

// The signal that ends processes. A test replaces it by one that a process can ignore, like one that cannot be ended.
extern int endingSignal;

}  // namespace NKVRHXA20
