#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxahost/collection/run_limits.h"
#include "host/hxahost/result/tool_run.h"

namespace hxahost {

using Clock = std::function<std::chrono::steady_clock::time_point()>;

// The runs of one collection: limited in time and output, and each command once if the options require it. A plug-in
// repeats requests after any failure; requests that would fail again are not run any more.
class LimitedRuns {
 public:
  // Adds every request to the list, which must outlive this.
  LimitedRuns(NKVRHXA20::SpawnFunction spawn, const RunLimits& limits, ToolRunList& runs,
              Clock clock = std::chrono::steady_clock::now);

  // Calls this for every request that is not run any more, with the message that the plug-in receives.
  void OnRefusal(std::function<void(const ToolRun& run, const std::string& message)> call) {
    onRefusal_ = std::move(call);
  }

  // Returns the output of the program, or its earlier output if the command is repeated. Throws the exceptions of the
  // service, and TSpawnException for requests that are not run any more.
  NKVRHXA20::SpawnResult Run(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds);

 private:
  struct Answer {
    NKVRHXA20::SpawnResult result;
    ToolRun run;
  };

  // A run that reached its time limit.
  struct TimedOut {
    ToolRun run;
    std::string message;  // of the service's exception
  };

  NKVRHXA20::SpawnResult RunNow(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds);
  void CheckMayRun(const std::string& path, const std::vector<std::string>& arguments);
  void CheckOutput(NKVRHXA20::SpawnResult& result);
  const TimedOut* FindTimedOut(const std::string& path, const std::vector<std::string>& arguments) const;
  int SecondsFor(int limitSeconds) const;
  [[noreturn]] void Refuse(const std::string& path, const std::vector<std::string>& arguments,
                           const std::string& reason, const NKVRHXA20::TSpawnException& failure);

  NKVRHXA20::SpawnFunction spawn_;
  RunLimits limits_;
  ToolRunList& runs_;
  Clock clock_;
  std::function<void(const ToolRun&, const std::string&)> onRefusal_ = [](const ToolRun&, const std::string&) {};
  std::chrono::steady_clock::time_point begin_;
  std::size_t outputBytes_ = 0;
  std::map<std::vector<std::string>, Answer> answers_;     // by path and arguments
  std::map<std::string, std::vector<TimedOut>> timedOut_;  // by path
};

}  // namespace hxahost
