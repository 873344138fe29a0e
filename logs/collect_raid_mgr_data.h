#pragma once

#include <string>

#include "collect/records.h"
#include "plugin/host_interface/date_time.h"

// Reads the event log of the RAID management application, one event a line.
class CollectRaidMgrData {
 public:
  explicit CollectRaidMgrData(HostHandle host) : Host(host) {}
  virtual ~CollectRaidMgrData() = default;

  HostHandle Host;
};
