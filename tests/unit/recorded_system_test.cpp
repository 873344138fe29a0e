#include "platform/recorded_system.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "host/hxahost/bundle/bundle.h"
#include "logs/collect_raid_mgr_data.h"
#include "platform/device_setup.h"
#include "platform/raid_manager_key.h"
#include "platform/registry.h"
#include "tests/support/raid_log_machine.h"
#include "tests/support/recorded_system_setting.h"
#include "tests/support/sample_bundle.h"

namespace {

std::optional<std::string> LogDir() {
  return ReadLocalMachineText(kRaidManagerKey, kRaidLogDirValue, kRaidLogPathSize);
}

TEST(RecordedSystem, AnswersInThePlaceOfTheRealOneAndOnlyWhileItIsSet) {
  const RaidLogSetting setting("elsewhere\\");
  const OsVersion before = GetOsVersion();
  {
    const RecordedSystemSetting system({
        {true, 5, 2},
        "", nullptr
    });
    EXPECT_TRUE(GetOsVersion().isWindowsNt);
    EXPECT_EQ(GetOsVersion().major, 5U);
    EXPECT_EQ(GetOsVersion().minor, 2U);
    EXPECT_EQ(LogDir(), "");
    EXPECT_EQ(ReadLocalMachineText(kRaidManagerKey, "Other", kRaidLogPathSize), std::nullopt);
    RecordingLog log;
    EXPECT_EQ(LookupSlotDevice(&log, 1), "");
    EXPECT_TRUE(log.entries.empty());
  }
  EXPECT_EQ(GetOsVersion().major, before.major);
  EXPECT_EQ(LogDir(), "elsewhere\\");
}

TEST(RecordedSystem, IsNoWindowsAndHasNoLogWhereThatWasRecorded) {
  ScriptedServices services;
  const RaidLogMachine machine(services, "here is one\n");
  const RecordedSystemSetting system(SystemOf(std::make_shared<const hxahost::Bundle>()));
  EXPECT_FALSE(GetOsVersion().isWindowsNt);
  EXPECT_EQ(LogDir(), std::nullopt);
  const RecordedSystemSetting withFolder({
      {true, 6, 1},
      machine.Folder(), nullptr
  });
  RecordingLog log;
  unsigned counter = 0;
  EXPECT_FALSE(CollectRaidMgrData(&log, counter).LogAvailable());
}

TEST(RecordedSystem, HasTheLogUnderThePathThatItHadThere) {
  ScriptedServices services;
  const RecordedSystemSetting system(SystemOf(std::make_shared<const hxahost::Bundle>(SampleBundle())));
  const std::string path = "C:\\ZXM\\KVR\\Zentraxis Manager\\RaidEvtA.log";
  services.files[NativePath(path)] = SampleBundle().raidLog->bytes;
  RecordingLog log;
  unsigned counter = 0;
  CollectRaidMgrData collector(&log, counter);
  ASSERT_TRUE(collector.LogAvailable());
  ASSERT_EQ(collector.GetRawData().size(), 1U);
  const std::string command(collector.GetRawData().front()->Command);
  EXPECT_TRUE(command.starts_with(path + " ")) << command;
  EXPECT_EQ(collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(collector.CurrentRecord().Message, "message\n");
  EXPECT_EQ(collector.ReadNextRecord(), RaidMgrRead::kEnd);
}

TEST(RecordedSystem, RefusesARefusedLogWithTheSameWords) {
  hxahost::Bundle bundle = SampleBundle();
  bundle.raidLog->bytes = "";
  bundle.raidLog->failure = hxahost::RecordedFailure{hxahost::FailureKind::kNotOpened, "it is no ordinary file"};
  const RecordedSystemSetting system(SystemOf(std::make_shared<const hxahost::Bundle>(bundle)));
  RecordingLog log;
  unsigned counter = 0;
  EXPECT_FALSE(CollectRaidMgrData(&log, counter).LogAvailable());
  const std::string said =
      "RAID manager log not read: C:\\ZXM\\KVR\\Zentraxis Manager\\RaidEvtA.log: it is no ordinary file.";
  EXPECT_EQ(std::ranges::count(log.entries, said, &LogEntry::text), 1);
}

}  // namespace
