#include "tests/end_to_end/endings.h"

const std::vector<Ending>& Endings() {
  static const std::vector<Ending> endings = {
      {"Interrupt", EndRequest::kInterrupt, 130,
       "hxahost: Interrupted: what ran was ended, and no file was replaced.\r\n"},
      {"Kill",      EndRequest::kKill,      256, ""                             },
  };
  return endings;
}

const int kLongestStartMilliseconds = 2000;
