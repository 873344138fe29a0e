#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/os_version.h"
#include "platform/raid_manager_key.h"
#include "platform/registry.h"
#include "tests/support/raid_log_setting.h"

namespace {

TEST(EnvironmentAnswers, ReadTheVersion) {
  struct Case {
    const char* text;
    bool isWindowsNt;
    unsigned major;
    unsigned minor;
  };
  const Case cases[] = {
      {"",       false, 0,  0},
      {"6",      true,  6,  0},
      {"6.1",    true,  6,  1},
      {"10.0.1", true,  10, 0},
      {"x",      true,  0,  0},
  };
  for (const Case& each : cases) {
    setenv("ZENX_OS_VERSION", each.text, 1);
    const OsVersion version = GetOsVersion();
    EXPECT_EQ(version.isWindowsNt, each.isWindowsNt) << each.text;
    EXPECT_EQ(version.major, each.major) << each.text;
    EXPECT_EQ(version.minor, each.minor) << each.text;
  }
  unsetenv("ZENX_OS_VERSION");
  EXPECT_FALSE(GetOsVersion().isWindowsNt);
}

TEST(EnvironmentAnswers, ContainOnlyTheLogsFolderAndOnlyIfItFits) {
  const RaidLogSetting setting("12345");
  EXPECT_EQ(ReadLocalMachineText(kRaidManagerKey, "LogDir", 6), "12345");
  EXPECT_EQ(ReadLocalMachineText(kRaidManagerKey, "LogDir", 5), std::nullopt);
  EXPECT_EQ(ReadLocalMachineText(kRaidManagerKey, "Other", 6), std::nullopt);
}

}  // namespace
