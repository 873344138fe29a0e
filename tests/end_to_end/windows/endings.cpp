#include "tests/end_to_end/endings.h"

// Ctrl-C and a closed console are left out: under Wine no event of a console has arrived in this test.
const std::vector<Ending>& Endings() {
  static const std::vector<Ending> endings = {
      {"Kill", EndRequest::kKill, 256, ""},
  };
  return endings;
}

const int kLongestStartMilliseconds = 2000;
