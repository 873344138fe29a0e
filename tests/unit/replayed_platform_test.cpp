#include "host/hxahost/bundle/replayed_platform.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "logs/collect_raid_mgr_data.h"
#include "platform/device_setup.h"
#include "platform/environment.h"
#include "platform/environment_answers.h"
#include "platform/native_path.h"
#include "platform/raid_manager_key.h"
#include "platform/registry.h"
#include "tests/support/raid_log_machine.h"
#include "tests/support/sample_bundle.h"

namespace {

using namespace hxahost;

std::optional<std::string> LogDir() {
  return ReadLocalMachineText(kRaidManagerKey, kRaidLogDirValue, kRaidLogPathSize);
}

std::string FirstLine(const std::string& path) { return TextFile(path).ReadLine(); }

TEST(ReplayedPlatform, AnswersAsTheMachineDidThatWasRecorded) {
  const RaidLogSetting setting("elsewhere\\");
  const ReplayedPlatform platform(SampleBundle());
  EXPECT_TRUE(GetOsVersion().isWindowsNt);
  EXPECT_EQ(GetOsVersion().major, 6U);
  EXPECT_EQ(GetOsVersion().minor, 1U);
  EXPECT_EQ(LogDir(), "C:\\ZXM\\");
  EXPECT_EQ(FirstLine(NativePath("C:\\ZXM\\RaidEvtA.log")), "day\tINF\tDBSERVER\tmessage\n");
  RecordingLog log;
  EXPECT_EQ(LookupSlotDevice(&log, 1), "");
  EXPECT_TRUE(log.entries.empty());
}

TEST(ReplayedPlatform, AnswersThatItIsNoWindowsAndHasNoLogWhereThatWasRecorded) {
  ScriptedServices services;
  const RaidLogMachine machine(services, "here is one\n");
  const ReplayedPlatform platform(Bundle{});
  EXPECT_FALSE(GetOsVersion().isWindowsNt);
  EXPECT_EQ(LogDir(), std::nullopt);
  EXPECT_FALSE(TextFile(NativePath(machine.LogPath())).IsOpen());
}

TEST(ReplayedPlatform, TellsAnEmptyFolderFromNone) {
  Bundle bundle;
  bundle.raidLogDir = "";
  const ReplayedPlatform platform(bundle);
  EXPECT_EQ(LogDir(), "");
}

TEST(ReplayedPlatform, KeepsTheFolderOfTheLogInWhatIsPublished) {
  ScriptedServices services;
  const ReplayedPlatform platform(SampleBundle());
  services.files[NativePath("")] = SampleBundle().raidLog->bytes;
  RecordingLog log;
  unsigned counter = 0;
  const CollectRaidMgrData collector(&log, counter);
  ASSERT_TRUE(collector.LogAvailable());
  ASSERT_EQ(collector.GetRawData().size(), 1U);
  const std::string command(collector.GetRawData().front()->Command);
  EXPECT_TRUE(command.starts_with("C:\\ZXM\\KVR\\Zentraxis Manager\\RaidEvtA.log ")) << command;
}

TEST(ReplayedPlatform, LeavesNothingBehind) {
  const RaidLogSetting setting("elsewhere\\");
  const std::optional<std::string> version = EnvironmentVariable(kOsVersionVariable);
  std::filesystem::path file;
  {
    const ReplayedPlatform platform(SampleBundle());
    file = NativePath("");
    EXPECT_TRUE(std::filesystem::exists(file));
  }
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_EQ(LogDir(), "elsewhere\\");
  EXPECT_EQ(EnvironmentVariable(kOsVersionVariable), version);
  EXPECT_EQ(EnvironmentVariable(kPlatformVariable), std::nullopt);
  EXPECT_EQ(EnvironmentVariable(kRaidLogFileVariable), std::nullopt);
  EXPECT_NE(NativePath("C:\\ZXM\\RaidEvtA.log"), "");
}

TEST(ReplayedPlatform, LetsGoOfAFileThatIsStillOpen) {
  std::filesystem::path file;
  TextFile open;
  {
    const ReplayedPlatform platform(SampleBundle());
    file = NativePath("");
    open = TextFile(file.string());
  }
  EXPECT_EQ(open.ReadLine().substr(0, 3), "day");
  open = TextFile();
  EXPECT_FALSE(std::filesystem::exists(file));
}

}  // namespace
