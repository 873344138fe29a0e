#pragma once

#include <csignal>

namespace NKVRHXA20 {

// The process between the host and a program that it runs. All that the program starts becomes a child of the keeper's
// when it loses its parent, whatever session, group and files it has. The keeper ends when nobody of them is left. Once
// the host wants it or has ended, however, the keeper ends them all.

// What the keeper says to the host, each in a message of its own. When it has ended, the host reads the end of the
// file.
struct KeeperReport {
  enum Kind { kStarted, kNotStarted, kEnded } kind;
  int value;  // the program's process; the error; how it ended, as waitpid says
};

// What the keeper needs, all of it prepared: it is forked from a process that may have threads, and allocates nothing.
struct KeptProgram {
  const char* path;
  char* const* arguments;
  char* const* environment;
  int output;  // where its standard output and standard error go
  int host;    // a socket, where reports go; the host shuts down its own end when the program is to be ended
};

// What the keeper does in a process that was just forked, with all signals blocked.
[[noreturn]] void Keep(const KeptProgram& program);

// What processes are ended with. A test has one here that a process can refuse, for one that the system cannot end.
extern int endingSignal;

}  // namespace NKVRHXA20
