#pragma once

#include <string>

#include "collect/records.h"
#include "logs/text_file.h"
#include "platform/os_version.h"
#include "plugin/host_interface/date_time.h"

// One event of the RAID management application's log. Fields are named like the property that they feed.
struct RaidMgrEvent {
  std::string RecordID;
  NKVRHXA20::TCIMDateTime MessageTimestamp;
  std::string Severity;
  std::string MachineName;
  std::string Message;  // with the line feed of its line
};

// What a read of the log found.
enum class RaidMgrRead : int {
  kEnd = 0,
  kRecord = 1,
  kOtherLine = 2,  // a line that is no event; the next read goes on after it
};

// Numbers the records of the process, from 0, whoever reads them. Never reset.
unsigned& ProcessWideEventCounter();

// Reads the event log of the RAID management application, one event a line.
class CollectRaidMgrData {
 public:
  // Looks the log up and opens it. A log that is not there or cannot be opened leaves LogAvailable() false.
  explicit CollectRaidMgrData(HostHandle host, unsigned& eventCounter = ProcessWideEventCounter());
  virtual ~CollectRaidMgrData() = default;

  bool LogAvailable() const { return logAvailable_; }

  // Fills the current record from the next line. Each call uses up a number, also one that finds no line.
  RaidMgrRead ReadNextRecord();

  const RaidMgrEvent& CurrentRecord() const { return record_; }

  // The whole log as one record; none where it is empty or could not be captured.
  RawDataList GetRawData() const { return rawData_; }

 private:
  bool SetRaidMgrPath();
  bool OpenRaidMgrLog();
  void Capture(const std::string& nativePath);
  void SetInformationRecord(const std::string& message);

  HostHandle host_;
  unsigned& eventCounter_;
  RaidMgrEvent record_;
  std::string path_;
  TextFile file_;
  bool logAvailable_ = false;
  RawDataList rawData_;
};

// Whether what ask gives is a Windows NT system of version 6 or later, which keeps application data elsewhere than
// older ones. An ask that throws is logged and counts as no.
bool IsVersionSixOrLater(HostHandle host, OsVersion (*ask)());
