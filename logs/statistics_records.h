#pragma once

#include <string>

#include "collect/host_handle.h"
#include "plugin/host_interface/date_time.h"

// Counters of one controller and its devices. Fields are named like the property that they feed.

// Bad stripes of one logical drive.
struct ZenxBstData {
  explicit ZenxBstData(HostHandle host) : Host(host) {}
  virtual ~ZenxBstData() = default;

  HostHandle Host;
  std::string ControllerNum;
  std::string LogicalDrive;
  std::string NumBadStripes;
};

// One row of the device event table.
struct ZenxEventData {
  explicit ZenxEventData(HostHandle host) : Host(host) {}
  virtual ~ZenxEventData() = default;

  HostHandle Host;
  std::string ControllerNum;
  std::string Channel;
  std::string ScsiId;
  std::string NumParityErrors;
  std::string NumSoftErrors;
  std::string NumHardErrors;
  std::string PFA;
  std::string Misc;
  NKVRHXA20::TCIMDateTime StatisticTime;  // local time at which the row was read
};

// The SCSI transfer sub-status of one device.
struct ZenxSubStatData {
  explicit ZenxSubStatData(HostHandle host) : Host(host) {}
  virtual ~ZenxSubStatData() = default;

  HostHandle Host;
  std::string ControllerNum;  // as the tool prints it: its own number, not the continued one
  std::string Channel;
  std::string ScsiId;
  std::string InstanceID;
  std::string Params;
  std::string Req_Off;
  std::string Max_Txer_P;
  std::string Cur_Txer_p;
  NKVRHXA20::TCIMDateTime StatisticTime;  // local time at which the line was read
};
