#include "logs/collect_raid_mgr_data.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/raid_log_setting.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_folder.h"

namespace {

// Systems other than Windows read the version from the environment, so the test can set an old one.
TEST(CollectRaidMgrDataOnOlderSystems, TakesTheRegistryValueUnchanged) {
  for (const char* const version : {"5.2", ""}) {
    const ScriptedServices services;
    const TemporaryFolder folder;
    folder.Write("RaidEvtA.log", "");
    const std::string logDir = folder.Path().string() + "\\";
    const RaidLogSetting setting(logDir);
    setenv("ZENX_OS_VERSION", version, 1);
    RecordingLog log;
    unsigned counter = 0;
    const CollectRaidMgrData collector(&log, counter);
    EXPECT_TRUE(collector.LogAvailable()) << version;
    EXPECT_EQ(log.entries.at(1), (LogEntry{3, "ZXM LogPath: " + logDir})) << version;
  }
}

}  // namespace
