#include "tests/end_to_end/endings.h"

const std::vector<Ending>& Endings() {
  static const std::vector<Ending> endings = {
      {"Interrupt", EndRequest::kInterrupt, 130,
       "hxahost: Interrupted: what ran was ended, and no file was replaced.\n"                                      },
      {"Terminate", EndRequest::kTerminate, 143,
       "hxahost: Terminated: what ran was ended, and no file was replaced.\n"                                       },
      {"HangUp",    EndRequest::kHangUp,    143, "hxahost: Hung up: what ran was ended, and no file was replaced.\n"},
      {"Kill",      EndRequest::kKill,      265, ""                                                                 },
  };
  return endings;
}

const int kLongestStartMilliseconds = 100;
