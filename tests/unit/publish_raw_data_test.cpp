#include "publish/publish_raw_data.h"

#include <gtest/gtest.h>

#include "tests/support/publishing.h"
#include "tests/support/raid_log_machine.h"

namespace {

constexpr const char* kRawData = "KVRSG_zxRawData";
constexpr const char* kManagerRawData = "KVRSG_zxManagerRawData";

TEST(PublishRawData, PublishesEachCommandWithItsLinesInTheOrderOfTheRuns) {
  Publishing host;
  host.rawData.push_back(
      std::make_shared<ZenxRawData>("zenx//tool.exe", "getconfig", 2, "al", " one \r\ntwo\r\nthree"));
  host.rawData.push_back(std::make_shared<ZenxRawData>("zenx//tool.exe", "getconfig", 0, "al", "\r\n"));
  host.Run(PublishRawData, kRawData);
  EXPECT_EQ(host.nameSpace.Published(kRawData),
            (Instances{
                {"Command = \"zenx//tool.exe getconfig 2 al\"", "RawResults = string[\" one \", \"two\"]"},
                {"Command = \"zenx//tool.exe getconfig  al\"",  "RawResults = string[\"\"]"              }
  }));
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishRawData, AnOutputWithoutACarriageReturnIsPublishedWithItsCommandAndNoElements) {
  Publishing host;
  host.rawData.push_back(std::make_shared<ZenxRawData>("tool", "command", 1, "", "no carriage return\n"));
  host.Run(PublishRawData, kRawData);
  EXPECT_EQ(host.nameSpace.Published(kRawData), (Instances{
                                                    {"Command = \"tool command 1 \"", "RawResults = string[]"}
  }));
}

TEST(PublishRawData, PublishesTheRaidManagersLogAsOneRecord) {
  Publishing host;
  const RaidLogMachine machine(host.services, "one\r\ntwo\r\n");
  host.Run(PublishManagerRawData, kManagerRawData);
  EXPECT_EQ(host.nameSpace.Published(kManagerRawData, "Command"), Properties{machine.LogPath() + "   "});
  EXPECT_EQ(host.nameSpace.Published(kManagerRawData).at(0).at(1), "RawResults = string[\"one\", \"two\"]");
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishRawData, WithoutTextNothingIsPublishedAndTheReasonIsLogged) {
  Publishing host;
  const auto because = [](const std::string& reason) {
    return Entries{
        LogEntry{3, reason + ": inside ZxPlugin"}
    };
  };
  host.ExpectNothing(PublishRawData, kRawData, because("ZenxRawDataVector is empty"));
  {
    const RaidLogSetting none(std::nullopt);
    host.ExpectNothing(PublishManagerRawData, kManagerRawData, because("RaidMgrLog does not exist"));
  }
  const RaidLogMachine machine(host.services, "");
  host.ExpectNothing(PublishManagerRawData, kManagerRawData, because("RaidMgrLog is empty"));
}

}  // namespace
