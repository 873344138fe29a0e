#include "tests/end_to_end/endings.h"

const std::vector<Ending>& Endings() {
  static const std::string interrupted = "hxahost: Interrupted: what ran was ended, and no file was replaced.\r\n";
  static const std::string terminated = "hxahost: Terminated: what ran was ended, and no file was replaced.\r\n";
  static const std::vector<Ending> endings = {
      {"ControlC",      EndRequest::kInterrupt, 130, interrupted},
      {"ControlBreak",  EndRequest::kBreak,     130, interrupted},
      {"ClosedConsole", EndRequest::kHangUp,    143, terminated },
      {"LogOff",        EndRequest::kTerminate, 143, terminated },
      {"Kill",          EndRequest::kKill,      256, ""         },
  };
  return endings;
}

const int kLongestStartMilliseconds = 2000;
