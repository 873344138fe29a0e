#include "logs/collect_raid_mgr_data.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

#include "collect/line_scanner.h"
#include "logs/raid_mgr_event_time.h"
#include "logs/raid_mgr_fields.h"
#include "platform/ask_os_version.h"
#include "platform/native_path.h"
#include "platform/raid_log_limit.h"
#include "platform/raid_manager_key.h"
#include "platform/recorded_system.h"
#include "platform/registry.h"
#include "plugin/host_interface/services.h"

using namespace NKVRHXA20;

namespace {

constexpr const char* kSubFolder = "KVR\\Zentraxis Manager\\";
constexpr const char* kFileName = "RaidEvtA.log";

// A log of a hundred megabytes has a million lines. Each takes some 70 bytes more than its text, also if it is empty.
constexpr std::ptrdiff_t kMostLines = 10'000'000;

}  // namespace

unsigned& ProcessWideEventCounter() {
  static unsigned counter = 0;
  return counter;
}

CollectRaidMgrData::CollectRaidMgrData(HostHandle host, unsigned& eventCounter)
    : host_(host), eventCounter_(eventCounter) {
  if (!SetRaidMgrPath()) return;
  SetInformationRecord("Registry Key Found.");
  logAvailable_ = OpenRaidMgrLog();
}

RaidMgrRead CollectRaidMgrData::ReadNextRecord() {
  record_.RecordID = std::to_string(eventCounter_++);
  if (!file_.IsOpen()) return RaidMgrRead::kEnd;
  if (file_.HasMetEnd()) {
    SetInformationRecord("No RAID Manager log entries.");
    Log(host_, kLogRoutine, "Unexpected end of file reached.");
    return RaidMgrRead::kEnd;
  }
  const std::string line = file_.ReadLine();
  if (line.empty()) return RaidMgrRead::kEnd;
  const auto [when, severity, machineName, message] = SplitFields(line);
  const auto time = ReadEventTime(line, when);
  if (!time) {
    Log(host_, kLogProblem, "In RaidEvtA.log file, there has invalid line for zentraxis log, please check it.");
    return RaidMgrRead::kOtherLine;
  }
  record_.MessageTimestamp = *time;
  record_.Severity = CollectedData::TrimRight(severity);
  record_.MachineName = machineName;
  record_.Message = message;
  return RaidMgrRead::kRecord;
}

bool CollectRaidMgrData::SetRaidMgrPath() {
  Log(host_, kLogRoutine, "Enter CollectRaidMgrData::SetRaidMgrPath()");
  const bool hasSubFolder = IsVersionSixOrLater(host_, GetOsVersion);
  const auto folder = ReadLocalMachineText(kRaidManagerKey, kRaidLogDirValue, kRaidLogPathSize);
  if (!folder) return false;
  const std::string path = *folder + (hasSubFolder ? kSubFolder : "");
  if ((path + kFileName).size() >= kRaidLogPathSize) return false;
  path_ = path;
  Log(host_, kLogRoutine, "ZXM LogPath: " + path_);
  Log(host_, kLogRoutine, "Exit CollectRaidMgrData::SetRaidMgrPath()");
  return true;
}

bool CollectRaidMgrData::OpenRaidMgrLog() {
  path_ += kFileName;
  const std::string nativePath = NativePath(path_);
  const RecordedSystem* const recorded = AnswersInPlace();
  file_ = recorded != nullptr ? TextFile(recorded->raidLog) : TextFile(nativePath, LargestRaidLog());
  if (!file_.IsOpen()) {
    const std::string& refusal = recorded != nullptr ? recorded->raidLogRefusal : file_.Refusal();
    if (!refusal.empty()) Log(host_, kLogProblem, kRaidLogNotRead + path_ + ": " + refusal + ".");
    // The path ends in the file's name already: it is twice in this line.
    Log(host_, kLogRoutine, path_ + kFileName + " not found.");
    return false;
  }
  Capture(nativePath);
  return true;
}

// A log that opens and yet cannot be captured is still read for its events.
void CollectRaidMgrData::Capture(const std::string& nativePath) {
  try {
    const std::string text = TOSSpecific::CaptureFile(nativePath);
    if (std::ranges::count(text, '\r') > kMostLines) throw std::runtime_error("it has more than 10,000,000 lines");
    if (!text.empty()) rawData_.push_back(std::make_shared<ZenxRawData>(path_, "", 0, "", text));
  } catch (const std::exception& failure) {
    Log(host_, kLogWarning,
        path_ + " is not among the raw data, as it could not be captured: " + std::string(failure.what()));
  }
}

// Says in the form of an event how far the log was found. The query publishes no such record.
void CollectRaidMgrData::SetInformationRecord(const std::string& message) {
  record_.MessageTimestamp = TOSSpecific::GetLocalTime();
  record_.Severity = "INF";
  record_.Message = message;
  record_.RecordID = "1";
}

bool IsVersionSixOrLater(HostHandle host, OsVersion (*ask)()) {
  const OsVersion version = AskOsVersion(host, ask);
  return version.isWindowsNt && version.major >= 6;
}
