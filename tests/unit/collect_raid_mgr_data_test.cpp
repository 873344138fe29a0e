#include "logs/collect_raid_mgr_data.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/raid_log_machine.h"

namespace {

using Texts = std::vector<std::string>;
using Entries = std::vector<LogEntry>;

constexpr const char* kEnter = "Enter CollectRaidMgrData::SetRaidMgrPath()";
constexpr const char* kExit = "Exit CollectRaidMgrData::SetRaidMgrPath()";
constexpr const char* kInvalid = "In RaidEvtA.log file, there has invalid line for zentraxis log, please check it.";
constexpr const char* kLocalTime = "20260305123015.250000+060";
constexpr const char* kLine = "Mar 5, 2007 11:02:03 PM EST\tINF \tSERVER\tDrive failed.\n";

// The collector on a machine with that log.
struct Collected {
  explicit Collected(const std::optional<std::string>& text = std::nullopt) : machine(services, text) {}

  ScriptedServices services;
  RecordingLog log;
  RaidLogMachine machine;
  unsigned counter = 0;
  CollectRaidMgrData collector{&log, counter};
};

Texts Fields(const RaidMgrEvent& event) {
  return {event.RecordID, event.MessageTimestamp.ToString(), event.Severity, event.MachineName, event.Message};
}

TEST(CollectRaidMgrData, FindsTheLogThroughTheRegistryAndLogsIt) {
  const Collected found(kLine);
  EXPECT_TRUE(found.collector.LogAvailable());
  EXPECT_EQ(found.log.entries, (Entries{
                                   {3, kEnter                                     },
                                   {3, "ZXM LogPath: " + found.machine.LogFolder()},
                                   {3, kExit                                      }
  }));
  EXPECT_EQ(Fields(found.collector.CurrentRecord()), (Texts{"1", kLocalTime, "INF", "", "Registry Key Found."}));
}

TEST(CollectRaidMgrData, KeepsTheWholeLogAsOneRawRecord) {
  const Collected found("first\r\nsecond\r\nthird");
  const RawDataList rawData = found.collector.GetRawData();
  ASSERT_EQ(rawData.size(), 1U);
  EXPECT_EQ(rawData[0]->Command, found.machine.LogPath() + "   ");
  EXPECT_EQ(rawData[0]->RawResults, (Texts{"first", "second"}));
}

TEST(CollectRaidMgrData, AnEmptyLogIsFoundWithoutARawRecord) {
  const Collected found("");
  EXPECT_TRUE(found.collector.LogAvailable());
  EXPECT_TRUE(found.collector.GetRawData().empty());
}

TEST(CollectRaidMgrData, WithoutTheRegistryValueThereIsNoLogAndOnlyTheFirstMessage) {
  const ScriptedServices services;
  const RaidLogSetting none(std::nullopt);
  RecordingLog log;
  unsigned counter = 7;
  CollectRaidMgrData collector(&log, counter);
  EXPECT_FALSE(collector.LogAvailable());
  EXPECT_TRUE(collector.GetRawData().empty());
  EXPECT_EQ(Fields(collector.CurrentRecord()), (Texts{"", "00000000000000.000000+000", "", "", ""}));
  EXPECT_EQ(collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(counter, 8U);
  EXPECT_EQ(log.entries, Entries(1, LogEntry{3, kEnter}));
}

TEST(CollectRaidMgrData, AMissingFileIsNamedTwiceAndLeavesTheInformationRecord) {
  Collected missing;
  EXPECT_FALSE(missing.collector.LogAvailable());
  EXPECT_TRUE(missing.collector.GetRawData().empty());
  EXPECT_EQ(missing.log.entries.back(), (LogEntry{3, missing.machine.LogPath() + "RaidEvtA.log not found."}));
  EXPECT_EQ(Fields(missing.collector.CurrentRecord()), (Texts{"1", kLocalTime, "INF", "", "Registry Key Found."}));
}

TEST(CollectRaidMgrData, ReadingWithoutALogUsesUpANumberAndEnds) {
  Collected missing;
  missing.log.entries.clear();
  EXPECT_EQ(missing.collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(missing.collector.CurrentRecord().RecordID, "0");
  EXPECT_EQ(missing.collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(missing.counter, 2U);
  EXPECT_EQ(missing.log.entries, Entries{});
}

// The registry value that makes the whole path that many characters long.
std::string FolderForPathOf(std::size_t length) {
  const std::size_t rest = std::string("KVR\\Zentraxis Manager\\RaidEvtA.log").size();
  return std::string(length - rest - 1, 'x') + "\\";
}

TEST(CollectRaidMgrData, APathOf255CharactersIsTheLongest) {
  const ScriptedServices services;
  unsigned counter = 0;
  {
    const RaidLogSetting setting(FolderForPathOf(255));
    RecordingLog log;
    const CollectRaidMgrData longest(&log, counter);
    EXPECT_EQ(log.entries.size(), 4U);  // entered, path, left, not found
    EXPECT_EQ(longest.CurrentRecord().Message, "Registry Key Found.");
  }
  for (const std::size_t length : {256U, 300U, 1000U}) {
    const RaidLogSetting setting(FolderForPathOf(length));
    RecordingLog log;
    CollectRaidMgrData tooLong(&log, counter);
    EXPECT_FALSE(tooLong.LogAvailable());
    EXPECT_EQ(log.entries, Entries(1, LogEntry{3, kEnter})) << length;
    EXPECT_EQ(tooLong.CurrentRecord().Message, "");
    EXPECT_EQ(tooLong.ReadNextRecord(), RaidMgrRead::kEnd);
  }
}

TEST(CollectRaidMgrData, ALogThatCannotBeCapturedIsLoggedAndStillRead) {
  ScriptedServices services;
  const RaidLogMachine machine(services, kLine);
  services.files.clear();
  RecordingLog log;
  unsigned counter = 0;
  CollectRaidMgrData collector(&log, counter);
  EXPECT_TRUE(collector.LogAvailable());
  EXPECT_TRUE(collector.GetRawData().empty());
  EXPECT_EQ(log.entries.back(),
            (LogEntry{2, machine.LogPath() + " is not among the raw data, as it could not be captured: " +
                             NativePath(machine.LogPath()) + " cannot be read"}));
  EXPECT_EQ(collector.ReadNextRecord(), RaidMgrRead::kRecord);
}

TEST(CollectRaidMgrData, ALogOfTooManyLinesIsNoRawDataAndStillRead) {
  ScriptedServices services;
  const RaidLogMachine machine(services, kLine);
  services.files.begin()->second = std::string(10'000'001, '\r');
  RecordingLog log;
  unsigned counter = 0;
  CollectRaidMgrData collector(&log, counter);
  EXPECT_TRUE(collector.GetRawData().empty());
  EXPECT_EQ(log.entries.back(),
            (LogEntry{2, machine.LogPath() + " is not among the raw data, as it could not be captured: " +
                             "it has more than 10,000,000 lines"}));
  EXPECT_EQ(collector.ReadNextRecord(), RaidMgrRead::kRecord);
}

TEST(CollectRaidMgrData, ReadsOneEventALine) {
  Collected found(std::string(kLine) + "2007/03/05 11:02:03 PST\tWRN\t\n");
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(Fields(found.collector.CurrentRecord()),
            (Texts{"0", "20070305230203.000000-300", "INF", "SERVER", "Drive failed.\n"}));
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(Fields(found.collector.CurrentRecord()), (Texts{"1", "20070305110203.000000-480", "WRN", "\n", ""}));
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(found.counter, 3U);
}

TEST(CollectRaidMgrData, TheSeverityLosesTrailingBlanksTabsAndLineFeedsOnly) {
  Collected found("2007/03/05 11:02:03 PST\t INF \n");
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(found.collector.CurrentRecord().Severity, " INF");
}

TEST(CollectRaidMgrData, AMalformedLineIsReportedAndChangesOnlyTheNumber) {
  Collected found(std::string(kLine) + "---\tERR\tOTHER\tText\n" + kLine);
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  Texts expected = Fields(found.collector.CurrentRecord());
  found.log.entries.clear();
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kOtherLine);
  EXPECT_EQ(found.log.entries, Entries(1, LogEntry{1, kInvalid}));
  expected[0] = "1";
  EXPECT_EQ(Fields(found.collector.CurrentRecord()), expected);
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(found.collector.CurrentRecord().RecordID, "2");
}

TEST(CollectRaidMgrData, AnEmptyFileEndsAtTheFirstCallWithoutARecordOfIt) {
  Collected found("");
  found.log.entries.clear();
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(found.collector.CurrentRecord().Message, "Registry Key Found.");
  EXPECT_EQ(found.log.entries, Entries{});
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(Fields(found.collector.CurrentRecord()),
            (Texts{"1", kLocalTime, "INF", "", "No RAID Manager log entries."}));
  EXPECT_EQ(found.log.entries, Entries(1, LogEntry{3, "Unexpected end of file reached."}));
  EXPECT_EQ(found.counter, 2U);
}

TEST(CollectRaidMgrData, TheRecordAtTheEndKeepsTheMachineOfTheLastEvent) {
  Collected found("2007/03/05 11:02:03 PST\tWRN\tSERVER\tText");  // no line feed: the read meets the end
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kEnd);
  EXPECT_EQ(Fields(found.collector.CurrentRecord()),
            (Texts{"1", kLocalTime, "INF", "SERVER", "No RAID Manager log entries."}));
}

TEST(CollectRaidMgrData, CarriageReturnsBeforeLineFeedsAreNotPartOfTheMessage) {
  Collected found("2007/03/05 11:02:03 PST\tWRN\tSERVER\tText\r\n");
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(found.collector.CurrentRecord().Message, "Text\n");
}

TEST(CollectRaidMgrData, ALineOfMoreThan511CharactersIsReadInPieces) {
  const std::string start = "2007/03/05 11:02:03 PST\tWRN\tSERVER\t";
  const std::string message(511 - start.size(), 'm');
  Collected found(start + message + "9 the rest\n");
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(found.collector.CurrentRecord().Message, message);
  // The rest is then at the beginning of a line, and this one begins with a digit.
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kRecord);
  EXPECT_EQ(found.collector.CurrentRecord().Message, "");
  EXPECT_EQ(found.collector.ReadNextRecord(), RaidMgrRead::kEnd);
}

TEST(CollectRaidMgrData, OddLinesGiveTheStatedResultAndNeverFail) {
  using namespace std::string_literals;
  using enum RaidMgrRead;
  struct Case {
    std::string text;
    std::vector<RaidMgrRead> reads;
  };
  const std::vector<RaidMgrRead> twentyRecords(20, kRecord);
  const std::vector<RaidMgrRead> twentyOthers(20, kOtherLine);
  const Case cases[] = {
      {"\n",                            {kOtherLine, kEnd}},
      {"\r\n",                          {kOtherLine, kEnd}},
      {"\t\t\t\t\n",                    {kOtherLine, kEnd}},
      {"Mar 5, 2007 11:02:03 PM EST\n", {kRecord, kEnd}   },
      {"20070305\n",                    {kRecord, kEnd}   },
      {"Ma\n",                          {kRecord, kEnd}   },
      {std::string(10000,               'x') + "\n",        twentyRecords},
      {std::string(10000,                               '*') + "\n",                                 twentyOthers},
      {"\xe4\xf6\xfc\n2007/03/05 \xff\t\x80\t\x81\t\x82\n",                   {kOtherLine, kRecord, kEnd}    },
      {"\0 March\n"s,{kOtherLine, kEnd}},
      {"5 \0March\n"s,                            {kRecord, kEnd}                                              },
      {"5 March 2007",{kRecord, kEnd}},
  };
  for (const Case& one : cases) {
    Collected found(one.text);
    for (const RaidMgrRead read : one.reads) {
      EXPECT_EQ(found.collector.ReadNextRecord(), read) << testing::PrintToString(one.text.substr(0, 50));
    }
  }
}

TEST(CollectRaidMgrData, NumbersGoOnFromCollectorToCollector) {
  const ScriptedServices services;
  const RaidLogSetting none(std::nullopt);
  RecordingLog log;
  CollectRaidMgrData first(&log);
  first.ReadNextRecord();
  CollectRaidMgrData second(&log);
  second.ReadNextRecord();
  EXPECT_EQ(std::stoul(second.CurrentRecord().RecordID), std::stoul(first.CurrentRecord().RecordID) + 1);
}

TEST(CollectRaidMgrData, VersionSixOfWindowsNtAndLaterKeepTheLogInASubFolder) {
  RecordingLog log;
  EXPECT_TRUE(IsVersionSixOrLater(&log, [] { return OsVersion{true, 6, 0}; }));
  EXPECT_TRUE(IsVersionSixOrLater(&log, [] { return OsVersion{true, 10, 0}; }));
  EXPECT_FALSE(IsVersionSixOrLater(&log, [] { return OsVersion{true, 5, 2}; }));
  EXPECT_FALSE(IsVersionSixOrLater(&log, [] { return OsVersion{false, 6, 0}; }));
  EXPECT_FALSE(IsVersionSixOrLater(&log, [] { return OsVersion{}; }));
  EXPECT_EQ(log.entries, Entries{});
}

TEST(CollectRaidMgrData, AVersionThatCannotBeAskedForIsLoggedAndCountsAsOlder) {
  RecordingLog log;
  EXPECT_FALSE(IsVersionSixOrLater(&log, []() -> OsVersion { throw std::runtime_error("no answer"); }));
  EXPECT_FALSE(IsVersionSixOrLater(&log, []() -> OsVersion { throw 1; }));
  const LogEntry expected = {
      0, "Can not get OS version from GetVersionEx(), please report the issue to customer service to fix it!"};
  EXPECT_EQ(log.entries, (Entries{expected, expected}));
}

}  // namespace
