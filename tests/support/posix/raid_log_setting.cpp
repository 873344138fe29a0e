#include "tests/support/raid_log_setting.h"

#include <cstdlib>

RaidLogSetting::RaidLogSetting(const std::optional<std::string>& folder) {
  setenv("ZENX_OS_VERSION", "6.1", 1);
  folder ? setenv("ZENX_RAID_LOG_DIR", folder->c_str(), 1) : unsetenv("ZENX_RAID_LOG_DIR");
}

RaidLogSetting::~RaidLogSetting() {
  unsetenv("ZENX_OS_VERSION");
  unsetenv("ZENX_RAID_LOG_DIR");
}
