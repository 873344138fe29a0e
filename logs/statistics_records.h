#pragma once

#include <string>

#include "collect/field_text.h"
#include "collect/host_handle.h"
#include "plugin/host_interface/date_time.h"

// Counters of one controller and its devices. Fields are named like the property that they feed.

// Bad stripes of one logical drive.
struct ZenxBstData {
  explicit ZenxBstData(HostHandle host) : Host(host) {}
  virtual ~ZenxBstData() = default;

  HostHandle Host;
  FieldText ControllerNum;
  FieldText LogicalDrive;
  FieldText NumBadStripes;
};

// One row of the device event table.
struct ZenxEventData {
  explicit ZenxEventData(HostHandle host) : Host(host) {}
  virtual ~ZenxEventData() = default;

  HostHandle Host;
  FieldText ControllerNum;
  FieldText Channel;
  FieldText ScsiId;
  FieldText NumParityErrors;
  FieldText NumSoftErrors;
  FieldText NumHardErrors;
  FieldText PFA;
  FieldText Misc;
  NKVRHXA20::TCIMDateTime StatisticTime;  // local time at which the row was read
};

// The SCSI transfer sub-status of one device.
struct ZenxSubStatData {
  explicit ZenxSubStatData(HostHandle host) : Host(host) {}
  virtual ~ZenxSubStatData() = default;

  HostHandle Host;
  FieldText ControllerNum;  // as the tool prints it: its own number, not the continued one
  FieldText Channel;
  FieldText ScsiId;
  FieldText InstanceID;
  FieldText Params;
  FieldText Req_Off;
  FieldText Max_Txer_P;
  FieldText Cur_Txer_p;
  NKVRHXA20::TCIMDateTime StatisticTime;  // local time at which the line was read
};
