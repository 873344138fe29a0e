#include "logs/collect_raid_mgr_data.h"

#include <gtest/gtest.h>

#include <windows.h>

#include "tests/support/raid_log_machine.h"

namespace {

// A text in the registry may lack its terminating null.
TEST(CollectRaidMgrDataOnWindows, TakesARegistryValueWithoutItsEnd) {
  ScriptedServices services;
  const RaidLogMachine machine(services, "");
  const std::string folder = machine.Folder();
  ASSERT_EQ(RegSetKeyValueA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Wow6432Node\\Adaptec\\RAIDController", "LogDir", REG_BINARY,
                            folder.c_str(), static_cast<DWORD>(folder.size())),
            ERROR_SUCCESS);
  RecordingLog log;
  unsigned counter = 0;
  const CollectRaidMgrData collector(&log, counter);
  EXPECT_TRUE(collector.LogAvailable());
  EXPECT_EQ(log.entries.at(1), (LogEntry{3, "ZXM LogPath: " + machine.LogFolder()}));
}

}  // namespace
