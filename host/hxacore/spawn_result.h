#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// How a program ended that somebody else has reaped.
inline constexpr const char* kUnknownEnding = "unknown";

// What is left of a program that was run to its end.
struct SpawnResult {
  SpawnResult() = default;
  // A text alone is an answer too: scripts and recordings need not know more.
  SpawnResult(std::string text) : output(std::move(text)) {}

  std::string output;
  std::optional<std::int64_t> exitStatus;  // none: not known, or the system ended it
  std::string ending;                      // how it ended where it has no exit status: "signal 11"
  double seconds = 0;                      // that it took
};

// Why a program gave nothing.
enum class SpawnFailure {
  kNotInstalled,  // there is no such file
  kNotAsked,      // the host does not run it any more
  kNotStarted,
  kTooLong,
  kTooMuchOutput,
};

// What a spawn service throws: to the plug-in an exception as any other, to the host one with a reason it can tell.
class HXACORE_API TSpawnException : public THXAException {
 public:
  TSpawnException(SpawnFailure failure, const std::string& message, double seconds = 0);
  ~TSpawnException() override;
  SpawnFailure Failure() const { return failure_; }
  double Seconds() const { return seconds_; }  // that the run took

 private:
  SpawnFailure failure_;
  double seconds_;
};

}  // namespace NKVRHXA20
