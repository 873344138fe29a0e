#include "host/hxahost/bundle/bundle_replay.h"

#include <algorithm>
#include <utility>

using namespace NKVRHXA20;

namespace hxahost {

namespace {

std::vector<std::string> KeyOf(const std::string& path, const std::vector<std::string>& arguments) {
  std::vector<std::string> key = {path};
  key.insert(key.end(), arguments.begin(), arguments.end());
  return key;
}

}  // namespace

BundleReplay::BundleReplay(Bundle bundle) : bundle_(std::make_shared<const Bundle>(std::move(bundle))) {
  for (std::size_t place = 0; place < bundle_->runs.size(); ++place) {
    runs_[KeyOf(bundle_->runs[place].path, bundle_->runs[place].arguments)].places.push_back(place);
  }
}

HostServices BundleReplay::Services() {
  HostServices services = RealServices();
  services.spawn = [this](const std::string& path, const std::vector<std::string>& arguments, int) {
    return Spawn(path, arguments);
  };
  services.capture = [this](const std::string& path) { return Capture(path); };
  services.machineName = [this] { return bundle_->machine; };
  services.localTime = [this] { return LocalTime(); };
  return services;
}

double BundleReplay::QuerySeconds(unsigned number) const {
  return number <= bundle_->querySeconds.size() ? bundle_->querySeconds[number - 1] : 0;
}

std::vector<std::string> BundleReplay::UnusedRuns() const {
  std::vector<std::string> commands;
  for (const auto& [key, same] : runs_) {
    for (std::size_t index = same.used; index < same.places.size(); ++index) {
      commands.push_back(CommandText(bundle_->runs[same.places[index]]));
    }
  }
  return commands;
}

// A command that was recorded once may have been answered from memory afterwards.
SpawnResult BundleReplay::Spawn(const std::string& path, const std::vector<std::string>& arguments) {
  const auto found = runs_.find(KeyOf(path, arguments));
  if (found == runs_.end()) ThrowMissing(CommandText({path, arguments, 0, {}, {}}));
  SameRuns& same = found->second;
  const std::size_t place = same.places[std::min(same.used++, same.places.size() - 1)];
  return Repeat(bundle_->runs[place]);
}

// The path of the file that replaces the log.
std::string BundleReplay::Capture(const std::string& path) {
  if (!bundle_->raidLog) ThrowMissing("the file " + path);
  if (bundle_->raidLog->failure) Throw(*bundle_->raidLog->failure);
  return bundle_->raidLog->bytes;
}

TCIMDateTime BundleReplay::LocalTime() {
  const std::vector<RecordedTime>& times = bundle_->localTimes;
  if (times.empty()) ThrowMissing("the time");
  if (timesUsed_ == times[time_].count && time_ + 1 < times.size()) {
    ++time_;
    timesUsed_ = 0;
  }
  if (timesUsed_ < times[time_].count) ++timesUsed_;
  return times[time_].time;
}

// Not an exception of a tool, so it ends the collection at once.
void BundleReplay::ThrowMissing(const std::string& what) {
  if (missing_.empty()) missing_ = what;
  throw NotRecorded("the bundle does not hold " + what);
}

}  // namespace hxahost
