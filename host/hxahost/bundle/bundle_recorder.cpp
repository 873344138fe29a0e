#include "host/hxahost/bundle/bundle_recorder.h"

#include <exception>
#include <utility>

#include "host/hxacore/whole_file.h"
#include "platform/raid_manager_key.h"
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

BundleRecorder::BundleRecorder(std::optional<std::uint16_t> osType, std::string directory) {
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
  RecordedRun& run = bundle_.runs.emplace_back(std::move(started));
  try {
    return run.result = spawn(run.path, run.arguments, run.limitSeconds);
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
    log.bytes = capture(path);
  } catch (...) {
    log.failure = CurrentFailure();
    log.bytes = ReadWholeFile(path).bytes;  // the plug-in reads it all the same, as far as it can
    throw;
  }
  return log.bytes;
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
