#include "logs/statistics_parsers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "collect/line_scanner.h"
#include "logs/statistics_records.h"
#include "tests/support/scripted_services.h"

namespace {

ZenxBstData BadStripe(const std::string& line) {
  const CollectedData text(nullptr, line);
  ZenxBstData record(nullptr);
  ParseBadStripe(record, text, "3");
  return record;
}

TEST(BadStripeParser, NormalisesDriveAndCountToDecimal) {
  struct Case {
    std::string line;
    std::string drive;
    std::string count;
  };
  const std::vector<Case> cases = {
      {"Logical drive 2 - 15\r\n",         "2",  "15"},
      {"Logical drive 02 - 0007\r\n",      "2",  "7" },
      {"  \t Logical drive 10 -0\r\n",     "10", "0" },
      {"Logical drive 2\r\n",              "2",  ""  },
      {"drive 2 - 15\r\n",                 "",   "15"},
      {"Logical drive x - none\r\n",       "0",  "0" },
      {"Logical drive \r\n",               "0",  ""  },
      {"Logical drive 2 -\r\n",            "2",  "0" },
      {"-\n",                              "",   "0" },
      {"-----------\r\n",                  "",   "0" },
      {"Logical drive 2 - 15 stripes\r\n", "2",  "15"},
      {"nothing\r\n",                      "",   ""  },
  };
  for (const Case& lineCase : cases) {
    SCOPED_TRACE(lineCase.line);
    const ZenxBstData record = BadStripe(lineCase.line);
    EXPECT_EQ(record.ControllerNum, "3");
    EXPECT_EQ(record.LogicalDrive, lineCase.drive);
    EXPECT_EQ(record.NumBadStripes, lineCase.count);
  }
}

class DeviceEventParser : public testing::Test {
 protected:
  static ZenxEventData Row(const std::string& line) {
    const CollectedData text(nullptr, line);
    ZenxEventData record(nullptr);
    ParseDeviceEvent(record, text, "3");
    return record;
  }

  static std::vector<std::string> Columns(const std::string& line) {
    const ZenxEventData record = Row(line);
    return {record.Channel, record.ScsiId, record.NumParityErrors, record.NumSoftErrors, record.NumHardErrors,
            record.PFA,     record.Misc};
  }

  ScriptedServices services_;
};

TEST_F(DeviceEventParser, ReadsTheSevenColumns) {
  EXPECT_EQ(Columns("| 1 | 2 | 3 | 4 | 5 | 6 | 7 |\r\n"),
            (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7"}));
  EXPECT_EQ(Row("| 1 |\r\n").ControllerNum, "3");
}

TEST_F(DeviceEventParser, KeepsTrailingBlanksInTheThirdFifthAndSeventhColumnOnly) {
  EXPECT_EQ(Columns("| 1   | 2   | 3   | 4   | 5   | 6   | 7   |\r\n"),
            (std::vector<std::string>{"1", "2", "3  ", "4", "5  ", "6", "7  "}));
}

TEST_F(DeviceEventParser, KeepsOneBlankOfAColumnOfBlanksWhereTrailingBlanksStay) {
  EXPECT_EQ(Columns("|    |    |    |    |    |    |    |\r\n"),
            (std::vector<std::string>{"", "", " ", "", " ", "", " "}));
}

TEST_F(DeviceEventParser, LeavesTheFieldsOfMissingColumnsEmpty) {
  EXPECT_EQ(Columns("| 1 | 2 | 3\r\n"), (std::vector<std::string>{"1", "2", "", "", "", "", ""}));
  EXPECT_EQ(Columns("\r\n"), std::vector<std::string>(7));
}

TEST_F(DeviceEventParser, IgnoresColumnsAfterTheSeventh) {
  EXPECT_EQ(Columns("| 1 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 |\r\n"),
            (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7"}));
}

TEST_F(DeviceEventParser, StampsTheRowWithTheLocalTime) {
  EXPECT_EQ(Row("| 1 |\r\n").StatisticTime.ToString(), services_.localTime.ToString());
}

class SubStatParser : public testing::Test {
 protected:
  static ZenxSubStatData Line(const std::string& line) {
    const CollectedData text(nullptr, line);
    ZenxSubStatData record(nullptr);
    ParseSubStat(record, text, "99");
    return record;
  }

  static std::vector<std::string> Values(const std::string& line) {
    const ZenxSubStatData record = Line(line);
    return {record.ControllerNum, record.Channel,    record.ScsiId,    record.Params,
            record.Req_Off,       record.Max_Txer_P, record.Cur_Txer_p};
  }

  ScriptedServices services_;
};

TEST_F(SubStatParser, ReadsTheTokensOfALineAndBuildsItsInstanceId) {
  const std::string line = "A:1 C:2 I:5 PARAMS:0x00 REQ-OFF:8 MAX-TXER-P:40 CUR-TXER-P:20\r\n";
  EXPECT_EQ(Values(line), (std::vector<std::string>{"1", "2", "5", "0x00", "8", "40", "20"}));
  EXPECT_EQ(Line(line).InstanceID, "Zentraxis:1C2S5");
  EXPECT_EQ(Line(line).Cur_Txer_p, "20");
}

TEST_F(SubStatParser, StampsTheLineWithTheLocalTime) {
  EXPECT_EQ(Line("A:1\r\n").StatisticTime.ToString(), services_.localTime.ToString());
}

TEST_F(SubStatParser, LeavesTheFieldOfAMissingTokenEmptyAndReadsAllOthers) {
  const std::vector<std::string> tokens = {"A:1 ",       "C:2 ",           "I:5 ",         "PARAMS:p ",
                                           "REQ-OFF:8 ", "MAX-TXER-P:40 ", "CUR-TXER-P:20"};
  const std::vector<std::string> all = {"1", "2", "5", "p", "8", "40", "20"};
  for (std::size_t missing = 0; missing < tokens.size(); ++missing) {
    SCOPED_TRACE(tokens[missing]);
    std::string line;
    for (std::size_t index = 0; index < tokens.size(); ++index) line += index == missing ? "" : tokens[index];
    std::vector<std::string> expected = all;
    expected[missing].clear();
    EXPECT_EQ(Values(line + "\r\n"), expected);
  }
}

TEST_F(SubStatParser, FindsNoTokenBeforeTheOneThatPrecedesIt) {
  EXPECT_EQ(Values("A:1 I:5 C:2 PARAMS:p REQ-OFF:8 MAX-TXER-P:40 CUR-TXER-P:20\r\n"),
            (std::vector<std::string>{"1", "2", "", "p", "8", "40", "20"}));
}

TEST_F(SubStatParser, TakesAValueWithoutABlankAfterItToTheLineEnd) {
  EXPECT_EQ(Values("A:1 C:2 I:5\r\n"), (std::vector<std::string>{"1", "2", "5", "", "", "", ""}));
  EXPECT_EQ(Values("A:1 C:2 I:5\n"), (std::vector<std::string>{"1", "2", "5", "", "", "", ""}));
}

TEST_F(SubStatParser, EndsAValueAtTheNextBlankAndAtNothingElse) {
  EXPECT_EQ(Line("A:1\rx C:2 I:5\r\n").ControllerNum, "1\rx");
  EXPECT_EQ(Line("A:1\r C:2 I:5\r\n").ControllerNum, "1\r");
}

TEST_F(SubStatParser, TakesTheLastValueWithItsBlanksUpToTheCarriageReturn) {
  EXPECT_EQ(Line("A:1 CUR-TXER-P: 20 ns\r\n").Cur_Txer_p, " 20 ns");
  EXPECT_EQ(Line("A:1 CUR-TXER-P:\r\n").Cur_Txer_p, "");
  EXPECT_EQ(Line("A:1 CUR-TXER-P:\n").Cur_Txer_p, "");
}

TEST_F(SubStatParser, BuildsTheInstanceIdOfALineWithoutTokensFromNothing) {
  EXPECT_EQ(Line("\r\n").InstanceID, "Zentraxis:CS");
}

// A token follows a value after one blank; its first occurrence after the previous token counts.
TEST_F(SubStatParser, TakesTheFirstOccurrenceOfATokenAnywhere) {
  struct Case {
    std::string name;
    std::string line;
    std::string values;  // with a bar after each
  };
  const std::vector<Case> cases = {
      {"as printed",               "A:1 C:2 I:5 PARAMS:p\r\n",      "1|2|5|p||||"          },
      {"in the value before it",   "A:1C:9 C:2 I:5\r\n",            "1C:9|9|5|||||"        },
      {"directly after the token", "A:C:9 C:2 I:5\r\n",             "C:9|9|5|||||"         },
      {"inside another word",      "A:1 XC:9 C:2 I:5\r\n",          "1|9|5|||||"           },
      {"after two blanks",         "A:1  C:2   I:5\r\n",            "1|2|5|||||"           },
      {"after a tab",              "A:1\tC:2 I:5\r\n",              "1\tC:2|2|5|||||"      },
      {"after a carriage return",  "A:1\rC:2 I:5\r\n",              "1\rC:2|2|5|||||"      },
      {"not at the line's start",  "  A:1 C:2 I:5\r\n",             "1|2|5|||||"           },
      {"twice",                    "A:1 C:2 C:3 I:5 I:6\r\n",       "1|2|5|||||"           },
      {"a value with a colon",     "A:1:2 C:2 I:5\r\n",             "1:2|2|5|||||"         },
      {"in a token before it",     "PARAMS:p A:1\r\n",              "1|||||||"             },
      {"after a later token",      "A:1 MAX-TXER-P:8 PARAMS:p\r\n", "1|||p||||"            },
      {"without its value",        "A: C: I: PARAMS: REQ-OFF:\r\n", "|||||||"              },
      {"cut off",                  "A:1 C:2 I:5 PARAM\r\n",         "1|2|5|||||"           },
      {"cut off before its colon", "A:1 C:2 I\n",                   "1|2||||||"            },
      {"in small letters",         "A:1 c:2 C:3 I:5\r\n",           "1|3|5|||||"           },
      {"in the last value",        "CUR-TXER-P:8 CUR-TXER-P:9\r\n", "||||||8 CUR-TXER-P:9|"},
      {"high characters",          "A:\xff C:\x80 I:5\n",           "\xff|\x80|5|||||"     },
  };
  for (const Case& lineCase : cases) {
    std::string values;
    for (const std::string& value : Values(lineCase.line)) values += value + "|";
    EXPECT_EQ(values, lineCase.values) << lineCase.name;
  }
}

TEST_F(SubStatParser, TakesZeroBytesIntoAValue) {
  EXPECT_EQ(Line(std::string("A:\0 C:2\0x I:5\n", 14)).ControllerNum, std::string(1, '\0'));
  EXPECT_EQ(Line(std::string("A:\0 C:2\0x I:5\n", 14)).Channel, std::string("2\0x", 3));
}

}  // namespace
