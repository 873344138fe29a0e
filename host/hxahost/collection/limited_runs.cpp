#include "host/hxahost/collection/limited_runs.h"

#include <algorithm>
#include <utility>

#include <fmt/core.h>

#include "host/hxahost/bundle/bundle_replay.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// A utility is not run any more after so many runs that hung, for any controller.
constexpr std::size_t kMostTimedOut = 2;

std::vector<std::string> KeyOf(const std::string& path, const std::vector<std::string>& arguments) {
  std::vector<std::string> key = {path};
  key.insert(key.end(), arguments.begin(), arguments.end());
  return key;
}

// "1" of {"getconfig", "1", "al"}.
std::string ControllerOf(const std::vector<std::string>& arguments) { return arguments.size() > 1 ? arguments[1] : ""; }

// A failed answer may succeed the next time.
bool IsToBeKept(const ToolRun& run) { return run.outcome == Outcome::kOk || run.outcome == Outcome::kRefused; }

}  // namespace

LimitedRuns::LimitedRuns(SpawnFunction spawn, const RunLimits& limits, ToolRunList& runs, Clock clock)
    : spawn_(std::move(spawn)), limits_(limits), runs_(runs), clock_(std::move(clock)), begin_(clock_()) {}

SpawnResult LimitedRuns::Run(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  const auto known = answers_.find(KeyOf(path, arguments));
  if (known != answers_.end()) {
    runs_.push_back(known->second.run);
    return known->second.result;
  }
  CheckMayRun(path, arguments);
  SpawnResult result = RunNow(path, arguments, SecondsFor(limitSeconds));
  CheckOutput(result);
  if (limits_.asksOnce && IsToBeKept(runs_.back())) {
    Answer& answer = answers_[KeyOf(path, arguments)];
    answer = {result, runs_.back()};
    answer.result.seconds = answer.run.seconds = 0;
    answer.run.isReused = true;
  }
  return result;
}

SpawnResult LimitedRuns::RunNow(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  try {
    return SpawnAndRecord(spawn_, path, arguments, limitSeconds, runs_);
  } catch (const TSpawnException& failure) {
    if (runs_.back().outcome == Outcome::kTimedOut) timedOut_[path].push_back({runs_.back(), failure.what()});
    throw;
  } catch (const NotRecorded&) {
    runs_.pop_back();  // nothing was run, now or then
    throw;
  }
}

void LimitedRuns::CheckMayRun(const std::string& path, const std::vector<std::string>& arguments) {
  if (const TimedOut* const before = FindTimedOut(path, arguments)) {
    Refuse(path, arguments, ArgumentsText(before->run) + " was not answered",
           TSpawnException(SpawnFailure::kTooLong, before->message));
  }
  if (SecondsFor(1) == 0) {
    const std::string reason = fmt::format("the {} s of the collection are over", *limits_.collectionSeconds);
    Refuse(path, arguments, reason, TSpawnException(SpawnFailure::kTooLong, reason));
  }
  if (outputBytes_ > limits_.outputBytes) {
    const std::string reason =
        fmt::format("the runs before it wrote {} MiB, all that they may", limits_.outputBytes / kMebibyte);
    Refuse(path, arguments, reason, TSpawnException(SpawnFailure::kTooMuchOutput, reason));
  }
}

// The run that exceeds the limit is the last one.
void LimitedRuns::CheckOutput(SpawnResult& result) {
  outputBytes_ += result.output.size();
  if (outputBytes_ <= limits_.outputBytes) return;
  const std::string reason = fmt::format("all runs together wrote more than {} MiB", limits_.outputBytes / kMebibyte);
  runs_.back().outcome = Outcome::kCutOff;
  runs_.back().failure = reason;
  throw TSpawnException(SpawnFailure::kTooMuchOutput, reason, result.seconds);
}

// The first such run with the controller's number; any such run if the utility is not run any more.
const LimitedRuns::TimedOut* LimitedRuns::FindTimedOut(const std::string& path,
                                                       const std::vector<std::string>& arguments) const {
  const auto known = timedOut_.find(path);
  if (known == timedOut_.end()) return nullptr;
  const std::vector<TimedOut>& before = known->second;
  if (before.size() >= kMostTimedOut) return &before.front();
  const auto same = std::ranges::find(before, ControllerOf(arguments),
                                      [](const TimedOut& each) { return ControllerOf(each.run.arguments); });
  return same == before.end() ? nullptr : &*same;
}

// The time limit of a run in whole seconds; 0 if the collection's time is over.
int LimitedRuns::SecondsFor(int limitSeconds) const {
  const int limit = limits_.runSeconds ? static_cast<int>(*limits_.runSeconds) : limitSeconds;
  if (!limits_.collectionSeconds) return limit;
  const auto end = begin_ + std::chrono::seconds(*limits_.collectionSeconds);
  const auto left = std::chrono::ceil<std::chrono::seconds>(end - clock_()).count();
  return static_cast<int>(std::clamp<long long>(left, 0, limit));
}

void LimitedRuns::Refuse(const std::string& path, const std::vector<std::string>& arguments, const std::string& reason,
                         const TSpawnException& failure) {
  ToolRun& run = runs_.emplace_back();
  run.path = path;
  run.arguments = arguments;
  run.outcome = Outcome::kNotAsked;
  run.failure = reason;
  onRefusal_(run, failure.what());
  throw failure;
}

}  // namespace hxahost
