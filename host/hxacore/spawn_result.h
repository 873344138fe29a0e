#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// The ending of a program whose exit status was collected elsewhere.
inline constexpr const char* kUnknownEnding = "unknown";

// The result of a program that was run to its end.
struct SpawnResult {
  SpawnResult() = default;
  // A text is a result, too: scripts and recordings need no more.
  SpawnResult(std::string text) : output(std::move(text)) {}

  std::string output;
  std::optional<std::int64_t> exitStatus;  // empty: not known, or the system ended it
  std::string ending;                      // if there is no exit status: "signal 11"
  double seconds = 0;                      // its duration
};

// Why a program returned nothing.
enum class SpawnFailure {
  kNotInstalled,  // there is no such file
  kNotAsked,      // the host does not run it any more
  kNotStarted,
  kTooLong,
  kNotEnded,  // it took too long, and the system cannot end it
  kTooMuchOutput,
};

// The exception of a spawn service: for the plug-in an ordinary exception, for the host one with a reason.
class HXACORE_API TSpawnException : public THXAException {
 public:
  TSpawnException(SpawnFailure failure, const std::string& message, double seconds = 0);
  ~TSpawnException() override;
  SpawnFailure Failure() const { return failure_; }
  double Seconds() const { return seconds_; }  // the duration of the run

 private:
  SpawnFailure failure_;
  double seconds_;
};

}  // namespace NKVRHXA20
