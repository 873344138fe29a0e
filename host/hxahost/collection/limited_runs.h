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

// The runs of one collection: bounded in time and output, and each command once where that is asked for. A plug-in
// asks on whatever fails; what it then asks in vain is not run any more.
class LimitedRuns {
 public:
  // Adds every question to the list, which outlives this.
  LimitedRuns(NKVRHXA20::SpawnFunction spawn, const RunLimits& limits, ToolRunList& runs,
              Clock clock = std::chrono::steady_clock::now);

  // Calls this for every question that is not asked any more, with the message that the plug-in gets.
  void OnRefusal(std::function<void(const ToolRun& run, const std::string& message)> call) {
    onRefusal_ = std::move(call);
  }

  // What the program says or, where it is asked again, has said. Throws what the service throws; of what is not asked
  // any more TSpawnException.
  NKVRHXA20::SpawnResult Run(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds);

 private:
  struct Answer {
    NKVRHXA20::SpawnResult result;
    ToolRun run;
  };

  // A run that met its time limit.
  struct TimedOut {
    ToolRun run;
    std::string message;  // of what the service threw
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
