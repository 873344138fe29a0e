#pragma once

#include <string>
#include <vector>

#include "tests/support/running_program.h"

// A way to end a program from outside, and its visible effects.
struct Ending {
  const char* name;
  EndRequest request;
  int exitStatus;
  std::string line;  // on standard error
};

// The ways that the system has.
const std::vector<Ending>& Endings();

// A collection starts a utility within this time, unless the machine is busy.
extern const int kLongestStartMilliseconds;
