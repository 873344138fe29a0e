#include "host/hxahost/bundle/bundle_recorder.h"

#include <exception>
#include <string_view>
#include <utility>

#include "host/hxacore/whole_file.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "platform/raid_manager_key.h"
#include "platform/recorded_system.h"
#include "platform/registry.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

FailureKind KindOf(SpawnFailure failure) {
  switch (failure) {
    case SpawnFailure::kNotInstalled: return FailureKind::kNotInstalled;
    case SpawnFailure::kNotAsked: return FailureKind::kNotAsked;
    case SpawnFailure::kNotStarted: return FailureKind::kNotStarted;
    case SpawnFailure::kTooLong: return FailureKind::kTooLong;
    case SpawnFailure::kNotEnded: return FailureKind::kNotEnded;
    case SpawnFailure::kTooMuchOutput: break;
  }
  return FailureKind::kTooMuchOutput;
}

// The exception that is being handled. Call it in a catch block.
RecordedFailure CurrentFailure() {
  try {
    throw;
  } catch (const THXAException& failure) {
    return {FailureKind::kHost, failure.what()};
  } catch (const std::exception& failure) {
    return {FailureKind::kOther, failure.what()};
  }
}

}  // namespace

BundleRecorder::BundleRecorder(std::optional<std::uint16_t> osType, std::string directory,
                               const std::filesystem::path& scratchFolder)
    : scratch_(scratchFolder) {
  bundle_.program = ZENX_VERSION;
  bundle_.directory = std::move(directory);
  bundle_.osType = osType;
  bundle_.osVersion = GetOsVersion();
  bundle_.raidLogDir = ReadLocalMachineText(kRaidManagerKey, kRaidLogDirValue, kRaidLogPathSize);
}

HostServices BundleRecorder::Wrap(HostServices services) {
  HostServices recording = services;
  recording.spawn = [this, spawn = std::move(services.spawn)](
                        const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
    return Spawn(spawn, {path, arguments, limitSeconds, {}, {}});
  };
  recording.capture = [this, capture = std::move(services.capture)](const std::string& path) {
    return Capture(capture, path);
  };
  recording.log = [this, log = std::move(services.log)](int level, const std::string& text) {
    ReadLogEntry(text);
    log(level, text);
  };
  recording.machineName = [this, machineName = std::move(services.machineName)] {
    return bundle_.machine = machineName();
  };
  recording.localTime = [this, localTime = std::move(services.localTime)] {
    const TCIMDateTime time = localTime();
    AddTime(time);
    return time;
  };
  return recording;
}

// A run is added when it starts, so runs are in the order of their starts.
SpawnResult BundleRecorder::Spawn(const SpawnFunction& spawn, RecordedRun started) {
  outputs_.emplace_back();
  RecordedRun& run = bundle_.runs.emplace_back(std::move(started));
  try {
    SpawnResult result = spawn(run.path, run.arguments, run.limitSeconds);
    outputs_.back() = scratch_.Append(result.output);
    std::string output = std::exchange(result.output, {});
    run.result = result;
    result.output = std::move(output);
    return result;
  } catch (const TSpawnException& failure) {
    run.failure = {KindOf(failure.Failure()), failure.what()};
    run.result.seconds = failure.Seconds();
    throw;
  } catch (...) {
    run.failure = CurrentFailure();
    throw;
  }
}

void BundleRecorder::AddNotAsked(const std::string& path, const std::vector<std::string>& arguments,
                                 const std::string& message) {
  outputs_.emplace_back();
  bundle_.runs.push_back({
      path, arguments, 0, {       },
         RecordedFailure{ FailureKind::kNotAsked, message}
  });
}

// The log is the only file that plug-ins ask the host to read.
std::string BundleRecorder::Capture(const std::function<std::string(const std::string&)>& capture,
                                    const std::string& path) {
  RecordedLog& log = bundle_.raidLog.emplace();
  log.path = path;
  try {
    std::string bytes = capture(path);
    log_ = scratch_.Append(bytes);
    return bytes;
  } catch (...) {
    log.failure = CurrentFailure();
    log_ = scratch_.Append(ReadWholeFile(path).bytes);  // the plug-in reads it, too, as far as possible
    throw;
  }
}

Bundle BundleRecorder::Recorded() const {
  Bundle bundle = bundle_;
  for (std::size_t run = 0; run < outputs_.size(); ++run) bundle.runs[run].result.output = scratch_.Read(outputs_[run]);
  if (bundle.raidLog) bundle.raidLog->bytes = scratch_.Read(log_);
  return bundle;
}

void BundleRecorder::Write(std::ostream& out) const {
  WriteBundle(
      out, bundle_, [this](std::size_t run) { return scratch_.Read(outputs_[run]); },
      [this] { return scratch_.Read(log_); });
}

// The plug-in reports a RAID manager's log that it does not open only with this entry.
void BundleRecorder::ReadLogEntry(const std::string& text) {
  constexpr std::string_view kColon = ": ";
  const std::size_t path = std::string_view(kRaidLogNotRead).size();
  const std::size_t colon = text.rfind(kColon);
  if (!text.starts_with(kRaidLogNotRead) || !text.ends_with('.') || colon < path) return;
  const std::size_t reason = colon + kColon.size();
  RecordedLog& log = bundle_.raidLog.emplace();
  log.path = text.substr(path, colon - path);
  log.failure = {FailureKind::kNotOpened, text.substr(reason, text.size() - 1 - reason)};
}

void BundleRecorder::AddTime(const TCIMDateTime& time) {
  std::vector<RecordedTime>& times = bundle_.localTimes;
  if (!times.empty() && times.back().time.ToString() == time.ToString()) {
    ++times.back().count;
  } else {
    times.push_back({time, 1});
  }
}

}  // namespace hxahost
