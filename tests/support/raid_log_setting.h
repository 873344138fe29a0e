#pragma once

#include <optional>
#include <string>

// While it exists, the system reports this log folder of the RAID manager, or none. The system is one of version 6 or
// later.
class RaidLogSetting {
 public:
  explicit RaidLogSetting(const std::optional<std::string>& folder);
  ~RaidLogSetting();
  RaidLogSetting(const RaidLogSetting&) = delete;
  RaidLogSetting& operator=(const RaidLogSetting&) = delete;
};
