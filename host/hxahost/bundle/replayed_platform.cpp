#include "host/hxahost/bundle/replayed_platform.h"

#include "host/hxahost/system/environment.h"
#include "platform/environment.h"
#include "platform/environment_answers.h"

namespace hxahost {

namespace {

std::optional<std::string> RecordedVersion(const OsVersion& version) {
  if (!version.isWindowsNt) return std::nullopt;
  return std::to_string(version.major) + "." + std::to_string(version.minor);
}

}  // namespace

ReplayedPlatform::ReplayedPlatform(const Bundle& bundle) {
  if (bundle.raidLog) log_.emplace(bundle.raidLog->bytes);
  Set(kPlatformVariable, std::string(kEnvironmentPlatform));
  Set(kOsVersionVariable, RecordedVersion(bundle.osVersion));
  Set(kRaidLogDirVariable, bundle.raidLogDir);
  // No file has an empty name: where there was no log, none is found, whatever this machine has.
  Set(kRaidLogFileVariable, std::string());
  if (log_) PutVariable(kRaidLogFileVariable, log_->Path());
}

ReplayedPlatform::~ReplayedPlatform() {
  for (const auto& [name, value] : before_) PutVariable(name, value);
}

void ReplayedPlatform::Set(const char* name, const std::optional<std::string>& value) {
  before_.emplace_back(name, EnvironmentVariable(name));
  PutVariable(name, value);
}

}  // namespace hxahost
