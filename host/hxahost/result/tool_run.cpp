#include "host/hxahost/result/tool_run.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <fmt/core.h>

#include "host/hxahost/text/escaping.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// A recorded run contains its duration; its limit may have been different.
std::string TimeoutText(const TSpawnException& failure, int limitSeconds) {
  const double seconds = std::floor(failure.Seconds());
  const bool isGone = failure.Failure() == SpawnFailure::kTooLong;
  return fmt::format("it did not answer within {:.0f} s{}",
                     seconds > 0 ? std::min<double>(seconds, limitSeconds) : limitSeconds,
                     isGone ? "" : ": " + Printable(failure.what()));
}

Outcome OutcomeOf(SpawnFailure failure) {
  switch (failure) {
    case SpawnFailure::kNotInstalled: return Outcome::kNotInstalled;
    case SpawnFailure::kNotAsked: return Outcome::kNotAsked;
    case SpawnFailure::kNotStarted: return Outcome::kNotStarted;
    case SpawnFailure::kTooLong:
    case SpawnFailure::kNotEnded: return Outcome::kTimedOut;
    case SpawnFailure::kTooMuchOutput: break;
  }
  return Outcome::kCutOff;
}

// What is wrong with the way in which a program ended; "" if nothing is.
std::string BadEnding(const SpawnResult& result) {
  if (result.ending == kUnknownEnding) return "how it ended is not known";
  if (!result.ending.empty()) return "it was ended by the system: " + Printable(result.ending);
  if (result.exitStatus.value_or(0) != 0) return "its exit status is " + std::to_string(*result.exitStatus);
  return "";
}

// The exit status decides even if the answer looks complete, and says why there is none.
void ReadAnswerOf(const SpawnResult& result, ToolRun& run) {
  run.seconds = result.seconds;
  run.exitStatus = result.exitStatus;
  run.bytes = result.output.size();
  ReadAnswer answer = ReadToolAnswer(ToolName(run.path), run.arguments, result.output);
  const std::string ending = BadEnding(result);
  if (!ending.empty() && answer.outcome == Outcome::kOk) answer = {Outcome::kFailed, ending};
  if (!ending.empty() && answer.outcome == Outcome::kEmpty) {
    answer = {Outcome::kFailed, answer.reason + ", and " + ending};
  }
  run.outcome = answer.outcome;
  run.failure = std::move(answer.reason);
}

}  // namespace

std::string ArgumentsText(const ToolRun& run) {
  std::string text;
  for (const std::string& argument : run.arguments) text += (text.empty() ? "" : " ") + Printable(argument);
  return text;
}

SpawnResult SpawnAndRecord(const SpawnFunction& spawn, const std::string& path,
                           const std::vector<std::string>& arguments, int limitSeconds, ToolRunList& runs) {
  ToolRun& run = runs.emplace_back();
  run.path = path;
  run.arguments = arguments;
  run.outcome = Outcome::kNotStarted;
  try {
    SpawnResult result = spawn(path, arguments, limitSeconds);
    ReadAnswerOf(result, run);
    return result;
  } catch (const TSpawnException& failure) {
    run.seconds = failure.Seconds();
    run.outcome = OutcomeOf(failure.Failure());
    run.failure = run.outcome == Outcome::kTimedOut ? TimeoutText(failure, limitSeconds) : Printable(failure.what());
    throw;
  } catch (const std::exception& failure) {
    run.failure = Printable(failure.what());
    throw;
  }
}

}  // namespace hxahost
