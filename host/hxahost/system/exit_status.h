#pragma once

#include <stdexcept>
#include <string>

namespace hxahost {

// The exit statuses of the program. Scripts depend on the numbers. "hxahost health" returns those of Severity, and
// kHealthUnknown for every failure.
enum class ExitStatus {
  kDone = 0,
  kQueryFailed = 1,
  kWrongArguments = 2,
  kPluginNotLoaded = 3,
  kHealthUnknown = 3,
  kNothingFound = 4,
  kBusy = 5,
  kInterrupted = 130,  // this and the next: as shells report a program that a signal ended
  kTerminated = 143,
};

// Ends the program with a status. The message is the one line that the user sees: the fault and what to do.
class ProgramError : public std::runtime_error {
 public:
  ProgramError(ExitStatus status, const std::string& message) : std::runtime_error(message), status_(status) {}
  ExitStatus Status() const { return status_; }

 private:
  ExitStatus status_;
};

}  // namespace hxahost
