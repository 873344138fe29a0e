#pragma once

#include <stdexcept>
#include <string>

namespace hxahost {

// What the program ends with. Scripts depend on the numbers. "hxahost health" ends with those of Severity, and with
// kHealthUnknown for every failure.
enum class ExitStatus {
  kDone = 0,
  kQueryFailed = 1,
  kWrongArguments = 2,
  kPluginNotLoaded = 3,
  kHealthUnknown = 3,
  kNothingFound = 4,
  kHungUp = 129,  // and the next two: as shells say of a program that a signal has ended
  kInterrupted = 130,
  kTerminated = 143,
};

// Ends the program with a status. The message is the one line that a person gets: what is wrong and what to do.
class ProgramError : public std::runtime_error {
 public:
  ProgramError(ExitStatus status, const std::string& message) : std::runtime_error(message), status_(status) {}
  ExitStatus Status() const { return status_; }

 private:
  ExitStatus status_;
};

}  // namespace hxahost
