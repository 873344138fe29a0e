#include "host/hxahost/collection/session_services.h"

#include <utility>

#include "host/hxacore/host_services.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// Ends what runs however the command ends.
class RunningCommand {
 public:
  RunningCommand(Progress* progress, const std::string& path, const std::vector<std::string>& arguments)
      : progress_(progress) {
    if (progress_ == nullptr) return;
    std::string command = path;
    for (const std::string& argument : arguments) command += " " + argument;
    progress_->Begin(command);
  }
  ~RunningCommand() {
    if (progress_ != nullptr) progress_->End();
  }
  RunningCommand(const RunningCommand&) = delete;
  RunningCommand& operator=(const RunningCommand&) = delete;

 private:
  Progress* progress_;
};

// Gives the run that ends, however it ends, the seconds that a tape has for it.
class PlayedSeconds {
 public:
  PlayedSeconds(const SessionTape& tape, ToolRunList& runs) : tape_(tape), runs_(runs) {}
  ~PlayedSeconds() { runs_.back().seconds = tape_.RunSeconds(runs_.back().seconds); }
  PlayedSeconds(const PlayedSeconds&) = delete;
  PlayedSeconds& operator=(const PlayedSeconds&) = delete;

 private:
  const SessionTape& tape_;
  ToolRunList& runs_;
};

}  // namespace

SessionServices::SessionServices(const QueryOptions& options, QueryLog& log, ToolRunList& runs, Progress* progress,
                                 SessionTape& tape) {
  HostServices services = tape.Services();
  services.log = [&log](int level, const std::string& text) { log.Add(level, text); };
  if (options.machineName) services.machineName = [name = *options.machineName] { return name; };
  if (options.localTime) services.localTime = [time = *options.localTime] { return time; };
  services.spawn = [spawn = services.spawn, &runs, &tape, progress](
                       const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
    const RunningCommand running(progress, path, arguments);
    const PlayedSeconds seconds(tape, runs);
    return SpawnAndRecord(spawn, path, arguments, limitSeconds, runs);
  };
  SetServices(tape.Recorded(std::move(services), [&runs] { return runs.back().seconds; }));
}

SessionServices::~SessionServices() { SetServices(RealServices()); }

}  // namespace hxahost
