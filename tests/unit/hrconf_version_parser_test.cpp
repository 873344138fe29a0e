#include "tools/hrconf/version_parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/recording_log.h"
#include "tests/support/tool_text.h"

namespace {

constexpr const char* kBadData = "Bad Data From Getversion output: ";

struct Versions {
  std::string bios;
  std::string driver;
  std::vector<LogEntry> log;
};

Versions Parse(const std::string& answer) {
  RecordingLog log;
  CollectedData text(&log, CrLf(answer));
  ZenxHrConfBios versions(&log);
  hrconf::ParseVersion(versions, text);
  return {versions.BIOS, versions.Driver, log.entries};
}

TEST(HrconfVersionParser, TakesTheVersionsFromTheFifthAndTheSixthLineAsTheyAreCut) {
  const Versions versions = Parse("1\n2\n3\n4\n   BIOS : 4.2-1 (8710)\n   Driver : 4.2-1 (8722)\n7\n");
  EXPECT_EQ(versions.bios, " 4.2-1 (8710)\r\n");
  EXPECT_EQ(versions.driver, " 4.2-1 (8722)\r\n");
  EXPECT_EQ(versions.log, std::vector<LogEntry>());
}

TEST(HrconfVersionParser, LeavesAVersionOnAnotherLineEmpty) {
  struct Case {
    const char* name;
    const char* answer;
    const char* bios;
    const char* driver;
  };
  const Case cases[] = {
      {"BIOS on the fourth line", "1\n2\n3\nBIOS : b\nDriver : d\n6\n",    "",       ""      },
      {"BIOS on the sixth line",  "1\n2\n3\n4\n5\nBIOS : b\nDriver : d\n", "",       ""      },
      {"a blank line between",    "1\n2\n3\n4\nBIOS : b\n\nDriver : d\n",  " b\r\n", ""      },
      {"no BIOS line",            "1\n2\n3\n4\nDriver : d\nDriver : e\n",  "",       " e\r\n"},
      {"swapped",                 "1\n2\n3\n4\nDriver : d\nBIOS : b\n",    "",       ""      },
      {"BIOS without a colon",    "1\n2\n3\n4\nBIOS\nDriver : d\n",        "",       " d\r\n"},
  };
  for (const auto& [name, answer, bios, driver] : cases) {
    const Versions versions = Parse(answer);
    EXPECT_EQ(versions.bios, bios) << name;
    EXPECT_EQ(versions.driver, driver) << name;
    EXPECT_EQ(versions.log, std::vector<LogEntry>()) << name;
  }
}

TEST(HrconfVersionParser, LeavesBothVersionsEmptyIfNoControllersAreFound) {
  const Versions versions = Parse("Controllers found: 0                           \n2\n3\n4\nBIOS : b\nDriver : d\n");
  EXPECT_EQ(versions.bios, "");
  EXPECT_EQ(versions.driver, "");
  EXPECT_EQ(versions.log, std::vector<LogEntry>());
}

TEST(HrconfVersionParser, LooksForThatAnswerOnlyOnTheFirstLine) {
  EXPECT_EQ(Parse("1\nControllers found: 0\n3\n4\nBIOS : b\nDriver : d\n").bios, " b\r\n");
}

TEST(HrconfVersionParser, LogsAShortAnswerAndKeepsTheValuesSoFar) {
  const std::string lines[] = {"1\n", "2\n", "3\n", "4\n", "BIOS : b\n", "Driver : d\n"};
  std::string answer;
  for (std::size_t count = 0; count <= std::size(lines); ++count) {
    const Versions versions = Parse(answer + "no line feed");
    EXPECT_EQ(versions.bios, count >= 5 ? " b\r\n" : "") << count;
    EXPECT_EQ(versions.driver, count >= 6 ? " d\r\n" : "") << count;
    if (count == std::size(lines)) {
      EXPECT_EQ(versions.log, std::vector<LogEntry>());
      break;
    }
    ASSERT_EQ(versions.log.size(), 1u) << count;
    EXPECT_EQ(versions.log[0].level, 3) << count;
    EXPECT_THAT(versions.log[0].text, testing::StartsWith(kBadData)) << count;
    EXPECT_GT(versions.log[0].text.size(), std::string(kBadData).size()) << count;
    answer += lines[count];
  }
}

}  // namespace
