#include "host/hxahost/collection/collection_services.h"

#include <memory>
#include <utility>

#include "host/hxahost/collection/limited_runs.h"
#include "host/hxahost/result/expected_runs.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// Ends the progress of a command, whether it succeeds or throws.
class RunningCommand {
 public:
  RunningCommand(Progress* progress, const std::string& path, const std::vector<std::string>& arguments,
                 const ToolRunList& before)
      : progress_(progress) {
    if (progress_ == nullptr) return;
    std::string command = path;
    for (const std::string& argument : arguments) command += " " + argument;
    progress_->Begin(command, ExpectedRuns(before));
  }
  ~RunningCommand() {
    if (progress_ != nullptr) progress_->End();
  }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;

 private:
  Progress* progress_;
};

}  // namespace

CollectionServices::CollectionServices(HostServices services, const CollectionOptions& options, QueryLog& log,
                                       ToolRunList& runs, Progress* progress, BundleRecorder* recorder) {
  services.log = [&log](int level, const std::string& text) { log.Add(level, text); };
  if (options.machineName) services.machineName = [name = *options.machineName] { return name; };
  if (options.localTime) services.localTime = [time = *options.localTime] { return time; };
  if (recorder != nullptr) services = recorder->Wrap(std::move(services));  // only real runs, not answers from memory
  const auto limited = std::make_shared<LimitedRuns>(services.spawn, options.limits, runs);
  if (recorder != nullptr) {
    limited->OnRefusal([recorder](const ToolRun& run, const std::string& message) {
      recorder->AddNotAsked(run.path, run.arguments, message);
    });
  }
  services.spawn = [limited, &runs, progress](const std::string& path, const std::vector<std::string>& arguments,
                                              int limitSeconds) {
    const RunningCommand running(progress, path, arguments, runs);
    return limited->Run(path, arguments, limitSeconds);
  };
  SetServices(std::move(services));
}

CollectionServices::~CollectionServices() { SetServices(RealServices()); }

}  // namespace hxahost
