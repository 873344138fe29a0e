#pragma once

#include <optional>
#include <string>

// While it lives, what the system says of the RAID manager's log folder: the value, or that there is none. The system
// is one of version 6 or later.
class RaidLogSetting {
 public:
  explicit RaidLogSetting(const std::optional<std::string>& folder);
  ~RaidLogSetting();
  RaidLogSetting(const RaidLogSetting&) = delete;
  RaidLogSetting& operator=(const RaidLogSetting&) = delete;
};
