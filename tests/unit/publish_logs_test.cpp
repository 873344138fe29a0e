#include "publish/publish_logs.h"

#include <gtest/gtest.h>

#include "tests/support/publishing.h"
#include "tests/support/raid_log_machine.h"

namespace {

constexpr const char* kSoft = "KVRSG_LogRecord_SoftEvent";
constexpr const char* kHard = "KVRSG_LogRecord_HardEvent";
constexpr const char* kDdd = "KVRSG_LogRecord_zxDDD";
constexpr const char* kRaidManager = "KVRSG_LogRecord_RAIDMgrEvent";

const NKVRHXA20::TCIMDateTime kTime(2005, 3, 15, 14, 2, 33, 0, 0);

template <class Log>
std::shared_ptr<Log> NamedLog(const std::vector<std::uint32_t>& codes) {
  const auto log = std::make_shared<Log>(nullptr);
  NameFields(*log);
  log->Codes = codes;
  log->MessageTimestamp = kTime;
  return log;
}

// Soft and hard events are linked by the controller's number; both have the class of soft events in all key properties.
TEST(PublishLogs, PublishEachFieldUnderItsOwnNameAsItWasPrinted) {
  Publishing host;
  ZenxController& controller = host.AddController("3");
  controller.SoftEvents = NamedLog<ZenxEventSoftData>({1, 163, 0xffffffff});
  controller.HardEvents = NamedLog<ZenxEventHardData>({7});
  AddNamed(controller.DddEvents).MessageTimestamp = kTime;
  host.Run(PublishSoftEvents, kSoft);
  host.Run(PublishHardEvents, kHard);
  host.Run(PublishDddEvents, kDdd);
  Properties rows = {"CreationClassName = \"KVRSG_LogRecord_SoftEvent\"",
                     "LogCreationClassName = \"KVRSG_LogRecord_SoftEvent\"",
                     "LogName = \"KVRSG_LogRecord_SoftEvent\"",
                     "MessageTimestamp = datetime 20050315140233.000000+000",
                     "RecordID = \"3\"",
                     "ControllerNum = \"3\"",
                     "NumEntries = \"3\"",
                     "HexSoftEvent = uint32[uint32 1, uint32 163, uint32 4294967295]"};
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kSoft, AsPrinted, rows));
  rows[6] = "NumEntries = \"1\"";
  rows[7] = "HexHardEvent = uint32[uint32 7]";
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kHard, AsPrinted, rows));
  EXPECT_TRUE(IsNamedAfterFields(
      host.nameSpace, kDdd, AsPrinted,
      {"CreationClassName = \"KVRSG_LogRecord_zxDDD\"", "LogCreationClassName = \"KVRSG_LogRecord_zxDDD\"",
       "LogName = \"KVRSG_LogRecord_zxDDD\"", rows[3]}));
}

TEST(PublishLogs, ALogWithoutCodesIsPublishedAndAMissingLogIsNot) {
  Publishing host;
  host.AddController("1");
  ZenxController& second = host.AddController("2");
  second.SoftEvents = std::make_shared<ZenxEventSoftData>(nullptr);
  second.HardEvents = std::make_shared<ZenxEventHardData>(nullptr);
  host.Run(PublishSoftEvents, kSoft);
  host.Run(PublishHardEvents, kHard);
  EXPECT_EQ(host.nameSpace.Published(kSoft, "RecordID"), Properties{"2"});
  EXPECT_EQ(host.nameSpace.Published(kSoft).at(0).back(), "HexSoftEvent = uint32[]");
  EXPECT_EQ(host.nameSpace.Published(kSoft, "NumEntries"), Properties{"0"});
  EXPECT_EQ(host.nameSpace.Published(kHard, "RecordID"), Properties{"2"});
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishLogs, DddRowsAreGroupedByControllerInListOrder) {
  Publishing host;
  for (const char* const number : {"2", "1"}) {
    ZenxController& controller = host.AddController(number);
    for (const char* const id : {"0002", "0001"}) Add(controller.DddEvents).RecordID = number + std::string("-") + id;
  }
  host.Run(PublishDddEvents, kDdd);
  EXPECT_EQ(host.nameSpace.Published(kDdd, "RecordID"), (Properties{"2-0002", "2-0001", "1-0002", "1-0001"}));
}

TEST(PublishLogs, ALogWhoseReadsReturn2And1And2And0PublishesExactlyOneInstance) {
  Publishing host;
  const RaidLogMachine machine(host.services, "***\n2007/03/05 11:02:03 PST\tWRN \tSERVER \tText.\n***\n");
  host.Run(PublishRaidManagerEvents, kRaidManager);
  const Instances published = host.nameSpace.Published(kRaidManager);
  ASSERT_EQ(published.size(), 1U);
  Properties properties = published[0];
  EXPECT_TRUE(properties.at(4).starts_with("RecordID = \""));
  properties.erase(properties.begin() + 4);  // continues the count of earlier records in this process
  EXPECT_EQ(properties,
            (Properties{"CreationClassName = \"KVRSG_LogRecord_RAIDMgrEvent\"",
                        "LogCreationClassName = \"KVRSG_LogRecord_RAIMgrEvent\"", "LogName = \"Zentraxis Manager\"",
                        "MessageTimestamp = datetime 20070305110203.000000-480", "Severity = \"WRN\"",
                        "MachineName = \"SERVER \"", "Message = \"Text.\n\""}));
  const LogEntry invalid = {1, "In RaidEvtA.log file, there has invalid line for zentraxis log, please check it."};
  EXPECT_EQ(host.log.entries, (Entries{invalid, invalid}));
}

TEST(PublishLogs, OnlyAMissingRaidManagerLogIsAWarning) {
  Publishing host;
  {
    const RaidLogSetting none(std::nullopt);
    const LogEntry warning = {2, "There are no KVRSG_LogRecord_RAIDMgrEvent Log file or no path to it"};
    host.ExpectNothing(PublishRaidManagerEvents, kRaidManager, {warning});
  }
  const RaidLogMachine machine(host.services, "");
  host.ExpectNothing(PublishRaidManagerEvents, kRaidManager, {});
}

}  // namespace
