#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "collect/host_handle.h"
#include "plugin/host_interface/date_time.h"

// The event logs of one controller. Fields are named like the property that they feed.

// One row of the defunct-drive log.
struct ZenxEventDddData {
  explicit ZenxEventDddData(HostHandle host) : Host(host) {}
  virtual ~ZenxEventDddData() = default;

  HostHandle Host;
  std::string Controller;
  std::string Date;
  std::string Time;
  std::string Channel;
  std::string ID;
  std::string Reason;
  std::string Descrip;
  std::string RecordID;
  NKVRHXA20::TCIMDateTime MessageTimestamp;
};

// The soft event log, whole.
struct ZenxEventSoftData {
  explicit ZenxEventSoftData(HostHandle host) : Host(host) {}
  virtual ~ZenxEventSoftData() = default;

  HostHandle Host;
  std::string Controller;
  std::string LogTitle;
  std::string RecordID;
  std::vector<std::uint32_t> Codes;
  NKVRHXA20::TCIMDateTime MessageTimestamp;
};

// The hard event log, whole.
struct ZenxEventHardData {
  explicit ZenxEventHardData(HostHandle host) : Host(host) {}
  virtual ~ZenxEventHardData() = default;

  HostHandle Host;
  std::string Controller;
  std::string LogTitle;
  std::string RecordID;
  std::vector<std::uint32_t> Codes;
  NKVRHXA20::TCIMDateTime MessageTimestamp;
};
