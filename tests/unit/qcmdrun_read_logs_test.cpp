#include "tools/qcmdrun/read_logs.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "logs/event_records.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/exception.h"
#include "tests/support/recording_log.h"
#include "tests/support/scripted_services.h"
#include "tests/support/tool_text.h"

namespace {

using Texts = std::vector<std::string>;

// Accepts drive 1 only.
void RejectSecondDrive(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber) {
  ParseBadStripe(record, text, controllerNumber);
  if (record.LogicalDrive != "1") throw NKVRHXA20::THXAException("no");
}

class QcmdrunReadLogs : public testing::Test {
 protected:
  QcmdrunReadLogs() { controller_.ControllerNum = "3"; }

  // "drive:count" of each record.
  Texts BadStripes(const std::string& text, qcmdrun::BadStripeParser parse = ParseBadStripe) {
    CollectedData scanner(&log_, CrLf(text));
    controller_.BadStripes.clear();
    qcmdrun::ReadBadStripes(controller_, scanner, parse);
    Texts texts;
    for (const auto& record : controller_.BadStripes) {
      texts.push_back(record->LogicalDrive + ":" + record->NumBadStripes);
    }
    return texts;
  }

  // "channel/SCSI ID" of each record.
  Texts DeviceEvents(const std::string& text) {
    CollectedData scanner(&log_, CrLf(text));
    controller_.DeviceEvents.clear();
    qcmdrun::ReadDeviceEvents(controller_, scanner);
    Texts texts;
    for (const auto& record : controller_.DeviceEvents) texts.push_back(record->Channel + "/" + record->ScsiId);
    return texts;
  }

  // "number:SCSI ID" of each record.
  Texts DddEvents(const std::string& text) {
    CollectedData scanner(&log_, CrLf(text));
    controller_.DddEvents.clear();
    qcmdrun::ReadDddEvents(controller_, scanner);
    Texts texts;
    for (const auto& record : controller_.DddEvents) texts.push_back(record->RecordID + ":" + record->ID);
    return texts;
  }

  // The instance identifier of each record.
  Texts SubStats(const std::string& text) {
    CollectedData scanner(&log_, CrLf(text));
    controller_.SubStats.clear();
    qcmdrun::ReadSubStats(controller_, scanner);
    Texts texts;
    for (const auto& record : controller_.SubStats) texts.push_back(record->InstanceID);
    return texts;
  }

  ScriptedServices services_;
  RecordingLog log_;
  ZenxController controller_{&log_};
};

TEST_F(QcmdrunReadLogs, ReadsBadStripesForAsLongAsLinesHaveADash) {
  EXPECT_EQ(
      BadStripes("Get bad stripe information\nLogical drive 1 - 0\nLogical drive 2 - 3\nend\nLogical drive 3 - 1\n"),
      (Texts{"1:0", "2:3"}));
  EXPECT_EQ(controller_.BadStripes[0]->ControllerNum, "3");
}

TEST_F(QcmdrunReadLogs, ReadsNoBadStripesWithoutTheirTitleOrWithAnotherLineAfterIt) {
  EXPECT_EQ(BadStripes("Logical drive 1 - 0\nend\n"), Texts{});
  EXPECT_EQ(BadStripes("Get bad stripe information\nNone\nLogical drive 1 - 0\nend\n"), Texts{});
  EXPECT_EQ(BadStripes(""), Texts{});
}

TEST_F(QcmdrunReadLogs, KeepsBadStripesBeforeARejectedLineAndLogsTheRejection) {
  EXPECT_EQ(BadStripes("Get bad stripe information\nLogical drive 1 - 0\nLogical drive 2 - 3\nLogical drive 1 - 5\n"
                       "end\n",
                       RejectSecondDrive),
            (Texts{"1:0"}));
  EXPECT_EQ(log_.entries, (std::vector<LogEntry>{
                              {3, "Bad Stripe data is junk: Quit BST data collection"}
  }));
}

const std::string kTable = "Device event table:\n+---+\n| heads |\n+---+\n";
const std::string kRows = "| 1 | 0 | 0 |\n| 1 | 1 | 0 |\n";
const std::string kEnd = "Command completed successfully.\n";

TEST_F(QcmdrunReadLogs, ReadsDeviceEventsFromTheThirdLineAfterTheTitleToTheEnd) {
  EXPECT_EQ(DeviceEvents(kTable + kRows + "+---+\n| 2 | 0 | 0 |\n" + kEnd + "| 9 | 9 | 9 |\n"),
            (Texts{"1/0", "1/1", "2/0"}));
  EXPECT_EQ(controller_.DeviceEvents[0]->ControllerNum, "3");
}

TEST_F(QcmdrunReadLogs, EndsDeviceEventsAtTheNextControllersHeading) {
  EXPECT_EQ(DeviceEvents(kTable + kRows + "Controller 2\n| 2 | 0 | 0 |\n" + kEnd), (Texts{"1/0", "1/1"}));
}

TEST_F(QcmdrunReadLogs, ContinuesWithDeviceEventsAfterALineThatNamesControllersWithoutABlank) {
  EXPECT_EQ(DeviceEvents(kTable + "| 1 | 0 | Controllers: |\n" + kEnd), (Texts{"1/0"}));
}

TEST_F(QcmdrunReadLogs, MakesAnEmptyDeviceEventOfALineWithoutColumns) {
  EXPECT_EQ(DeviceEvents(kTable + "\n" + kEnd), (Texts{"/"}));
}

TEST_F(QcmdrunReadLogs, ReadsNoDeviceEventWithoutTheTitle) { EXPECT_EQ(DeviceEvents(kRows + kEnd), Texts{}); }

std::string DddRow(const std::string& month, const std::string& id) {
  return "| " + month + "/15/2005 | 14:02:33 | 1 | " + id + " | 07 | gone\n";
}

TEST_F(QcmdrunReadLogs, NumbersDefunctDriveRowsFromOneAndPassesOverRules) {
  EXPECT_EQ(DddEvents("heads\n+---+\n" + DddRow("01", "4") + "+---+\n" + DddRow("02", "5") + "+---+\n" + kEnd),
            (Texts{"0001:4", "0002:5"}));
  EXPECT_EQ(controller_.DddEvents[0]->Controller, "3");
}

TEST_F(QcmdrunReadLogs, GivesTheTenthDefunctDriveRowTheNumber000a) {
  std::string rows;
  for (int row = 0; row < 10; ++row) rows += DddRow("01", "4");
  EXPECT_EQ(DddEvents("+---+\n" + rows + kEnd).back(), "000a:4");
}

TEST_F(QcmdrunReadLogs, KeepsTwoDefunctDriveRowsWhenTheThirdHasABadTimeStamp) {
  EXPECT_EQ(DddEvents("+---+\n" + DddRow("01", "4") + DddRow("02", "5") + DddRow("13", "6") + DddRow("03", "7") + kEnd),
            (Texts{"0001:4", "0002:5"}));
  EXPECT_EQ(log_.entries, (std::vector<LogEntry>{
                              {3, "Time Stamp is junk: Quit DDD data collection"}
  }));
}

TEST_F(QcmdrunReadLogs, ReadsNoDefunctDriveRowWithoutARule) { EXPECT_EQ(DddEvents(DddRow("01", "4") + kEnd), Texts{}); }

TEST_F(QcmdrunReadLogs, SetsEachCodeLogFromItsOwnTitle) {
  CollectedData both(&log_,
                     CrLf("Controller Soft Event Log\n0001\n" + kEnd + "Controller Hard Event Log\n0002\n" + kEnd));
  qcmdrun::ReadSoftEvents(controller_, both);
  qcmdrun::ReadHardEvents(controller_, both);
  ASSERT_TRUE(controller_.SoftEvents);
  ASSERT_TRUE(controller_.HardEvents);
  EXPECT_EQ(controller_.SoftEvents->Codes, (std::vector<std::uint32_t>{1}));
  EXPECT_EQ(controller_.SoftEvents->Controller, "3");
  EXPECT_EQ(controller_.HardEvents->Codes, (std::vector<std::uint32_t>{2}));
  EXPECT_EQ(controller_.HardEvents->Controller, "3");
}

TEST_F(QcmdrunReadLogs, LeavesACodeLogUnsetWithoutItsTitle) {
  CollectedData soft(&log_, CrLf("Controller Soft Event Log\n" + kEnd));
  CollectedData hard(&log_, CrLf("Controller Hard Event Log\n" + kEnd));
  qcmdrun::ReadSoftEvents(controller_, hard);
  qcmdrun::ReadHardEvents(controller_, soft);
  EXPECT_FALSE(controller_.SoftEvents);
  EXPECT_FALSE(controller_.HardEvents);
}

TEST_F(QcmdrunReadLogs, ReadsSubStatusFromTheFirstLineWithATokenToTheEnd) {
  EXPECT_EQ(
      SubStats("Sub status\n-----\nA:1 C:1 I:0 PARAMS:0\nA:1 C:1 I:1 PARAMS:0\n" + kEnd + "A:9 C:9 I:9 PARAMS:0\n"),
      (Texts{"Zentraxis:1C1S0", "Zentraxis:1C1S1"}));
}

TEST_F(QcmdrunReadLogs, MakesASubStatusOfEveryLineUpToTheEnd) {
  EXPECT_EQ(SubStats("A:1 C:1 I:0 PARAMS:0\n\n" + kEnd), (Texts{"Zentraxis:1C1S0", "Zentraxis:CS"}));
}

TEST_F(QcmdrunReadLogs, ContinuesAfterALineWithOnlyLettersOfTheEnd) {
  EXPECT_EQ(DeviceEvents(kTable + "| 1 | 0 | C |\n| y | 1 | Command |\n" + kEnd), (Texts{"1/0", "y/1"}));
  EXPECT_EQ(SubStats("A:1 C:1 I:0 y\nA:1 C:1 I:1 Command completed successfull\n" + kEnd),
            (Texts{"Zentraxis:1C1S0", "Zentraxis:1C1S1"}));
  EXPECT_EQ(DddEvents("+---+\n| 01/15/2005 | 14:02:33 | 1 | 4 | 07 | by hand\n" + kEnd), (Texts{"0001:4"}));
}

TEST_F(QcmdrunReadLogs, EndsAtTheEndAnywhereInItsLine) {
  EXPECT_EQ(DeviceEvents(kTable + kRows + "| - Controller 1: " + kEnd + kRows), (Texts{"1/0", "1/1"}));
  EXPECT_EQ(SubStats("A:1 C:1 I:0\nA:1 C:1 I:1 " + kEnd + "A:1 C:1 I:2\n"), (Texts{"Zentraxis:1C1S0"}));
}

TEST_F(QcmdrunReadLogs, ReadsNoSubStatusWithoutAToken) { EXPECT_EQ(SubStats("C:1 I:0\n" + kEnd), Texts{}); }

TEST_F(QcmdrunReadLogs, FailsWhereATableIsCutOff) {
  EXPECT_THROW(BadStripes("Get bad stripe information\nLogical drive 1 - 0\n"), std::out_of_range);
  EXPECT_THROW(DeviceEvents("Device event table:\n+---+\n"), std::out_of_range);
  EXPECT_THROW(DeviceEvents(kTable + kRows), std::out_of_range);
  EXPECT_THROW(DddEvents("+---+\n" + DddRow("01", "4")), std::out_of_range);
  EXPECT_THROW(SubStats("A:1 C:1 I:0 PARAMS:0\n"), std::out_of_range);
  CollectedData soft(&log_, CrLf("Controller Soft Event Log\n0001\n"));
  EXPECT_THROW(qcmdrun::ReadSoftEvents(controller_, soft), std::out_of_range);
  EXPECT_FALSE(controller_.SoftEvents);
}

}  // namespace
