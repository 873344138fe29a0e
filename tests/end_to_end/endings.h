#pragma once

#include <string>
#include <vector>

#include "tests/support/running_program.h"

// A way in which a program can be made to end, and what is seen of that.
struct Ending {
  const char* name;
  EndRequest request;
  int exitStatus;
  std::string line;  // on standard error
};

// Those that the system has.
const std::vector<Ending>& Endings();

// Within this time a collection has started a utility, unless the machine is busy.
extern const int kLongestStartMilliseconds;
