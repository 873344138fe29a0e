#include "logs/event_parsers.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "collect/ascii_text.h"
#include "collect/line_scanner.h"
#include "logs/event_records.h"
#include "plugin/host_interface/exception.h"
#include "tests/support/tool_text.h"

namespace {

using NKVRHXA20::THXAException;

ZenxEventDddData Row(const std::string& line, std::uint32_t entryNumber = 1) {
  const CollectedData text(nullptr, line);
  ZenxEventDddData record(nullptr);
  ParseDddRow(record, text, "3", entryNumber);
  return record;
}

std::string RowAt(const std::string& date, const std::string& time) {
  return "| " + date + " | " + time + " | 1 | 4 | 07 | gone\r\n";
}

TEST(EventParsers, ReadTheColumnsOfADefunctDriveRow) {
  const ZenxEventDddData record = Row("| 03/15/2005 | 14:02:33 | 1 | 4 | 0x07 | Removed by hand |\r\n");
  EXPECT_EQ(record.Controller, "3");
  EXPECT_EQ(record.Date, "03/15/2005");
  EXPECT_EQ(record.Time, "14:02:33");
  EXPECT_EQ(record.Channel, "1");
  EXPECT_EQ(record.ID, "4");
  EXPECT_EQ(record.Reason, "0x07");
  EXPECT_EQ(record.Descrip, "Removed by hand |\r");
}

TEST(EventParsers, MakeTheTimeStampOutOfDateAndTime) {
  EXPECT_EQ(Row(RowAt("03/15/2005", "14:02:33")).MessageTimestamp.ToString(), "20050315140233.000000+000");
}

TEST(EventParsers, TakeDateAndTimeByPositionWithAnyTextBetween) {
  EXPECT_EQ(Row(RowAt("03-15-2005 Tue", "14.02.33 UTC")).MessageTimestamp.ToString(), "20050315140233.000000+000");
}

TEST(EventParsers, RejectARowWithoutDateAndTime) {
  struct Case {
    std::string name;
    std::string line;
  };
  const std::vector<Case> cases = {
      {"no such month",     RowAt("13/15/2005",     "14:02:33")},
      {"no such day",                   RowAt("02/30/2005",                             "14:02:33")},
      {"no such hour",        RowAt("03/15/2005",  "24:02:33")},
      {"letters",RowAt("xx/15/2005",    "14:02:33")},
      {"date too short",           RowAt("3/15/2005",                      "14:02:33")},
      {"date of a character",                   RowAt("3",                          "14:02:33")},
      {"time too short",        RowAt("03/15/2005",         "14:02")},
      {"time missing","| 03/15/2005 |\r\n"},
      {"column heads",    "| Date | Time | Ch | ID | Code | Text\r\n"},
      {"empty line",                   "\r\n"                           },
  };
  for (const Case& rowCase : cases) EXPECT_THROW(Row(rowCase.line), THXAException) << rowCase.name;
}

TEST(EventParsers, NumberDefunctDriveRowsInFourHexadecimalDigits) {
  const std::string line = RowAt("03/15/2005", "14:02:33");
  EXPECT_EQ(Row(line, 1).RecordID, "0001");
  EXPECT_EQ(Row(line, 10).RecordID, "000a");
  EXPECT_EQ(Row(line, 0x10000).RecordID, "10000");
}

template <class Record>
struct CodeLog;

template <>
struct CodeLog<ZenxEventSoftData> {
  static void Parse(ZenxEventSoftData& record, CollectedData& text) { ParseSoftLog(record, text, "3"); }
};

template <>
struct CodeLog<ZenxEventHardData> {
  static void Parse(ZenxEventHardData& record, CollectedData& text) { ParseHardLog(record, text, "3"); }
};

template <class Record>
class CodeLogParsers : public testing::Test {
 protected:
  static Record Read(const std::string& lines) {
    CollectedData text(nullptr, CrLf("Controller Event Log of controller 3\n" + lines));
    Record record(nullptr);
    CodeLog<Record>::Parse(record, text);
    EXPECT_TRUE(Contains(text.CurrentLine(), "Command completed successfully"));
    return record;
  }
};

using LogRecords = testing::Types<ZenxEventSoftData, ZenxEventHardData>;
TYPED_TEST_SUITE(CodeLogParsers, LogRecords, );

TYPED_TEST(CodeLogParsers, ReadOneCodeALineUpToTheEndAndPassOverSeparators) {
  const TypeParam record = this->Read("0001\n-----------\n00a3\nCommand completed successfully.\n0004\n");
  EXPECT_EQ(record.Codes, (std::vector<std::uint32_t>{1, 0xa3}));
}

TYPED_TEST(CodeLogParsers, KeepTheWholeTitleLine) {
  const TypeParam record = this->Read("Command completed successfully.\n");
  EXPECT_EQ(record.LogTitle, "Controller Event Log of controller 3\r\n");
  EXPECT_EQ(record.Controller, "3");
}

TYPED_TEST(CodeLogParsers, GiveEveryLogTheSameNumberAndTimeHoweverManyCodesItHolds) {
  for (const std::string& codes : {std::string(), std::string("1\n"), std::string("1\n2\n3\n")}) {
    const TypeParam record = this->Read(codes + "Command completed successfully.\n");
    EXPECT_EQ(record.RecordID, "1");
    EXPECT_EQ(record.MessageTimestamp.ToString(), "20000101010101.000001+001");
  }
}

TYPED_TEST(CodeLogParsers, ReadCodesAsTheCLibraryDoes) {
  struct Case {
    std::string line;
    std::uint32_t code;
  };
  const std::vector<Case> cases = {
      {"  \t0a000203 at boot", 0x0a000203},
      {"0x1F",                 0x1f      },
      {"FFFFFFFF",             0xffffffff},
      {" -5",                  4294967291},
      {" -80000000",           2147483648},
      {" -ffffffff",           1         },
      {" -100000000",          0xffffffff},
      {"100000000",            0xffffffff},
      {"99999999999999999999", 0xffffffff},
      {"no code",              0         },
      {"",                     0         },
      {"----------",           0         },
  };
  for (const Case& codeCase : cases) {
    SCOPED_TRACE("[" + codeCase.line + "]");
    const TypeParam record = this->Read(codeCase.line + "\nCommand completed successfully.\n");
    EXPECT_EQ(record.Codes, (std::vector<std::uint32_t>{codeCase.code}));
  }
}

TYPED_TEST(CodeLogParsers, FailWhereTheEndIsMissing) { EXPECT_THROW(this->Read("0001\n"), std::out_of_range); }

}  // namespace
