#include "tools/arcconf/driver_mismatch.h"

#include <gtest/gtest.h>

#include "tests/support/recording_log.h"

namespace {

TEST(ArcconfDriverMismatch, IsLoggedInOneLineWithSevenTabsAndInFullWithTwentyFourBlanks) {
  const std::string tabs(7, '\t');
  const std::string indent = "\n" + std::string(24, ' ');
  const std::string present =
      "A Zentraxis C4, C5, C6/C6-e or B3 is present, but there is a driver and firmware mismatch. ";
  const std::string update =
      "Please update your device driver or install Zentraxis Manager including the Zentraxis Manager ";
  const std::vector<LogEntry> expected = {
      {100, present + tabs + update + "Agent " + tabs + "to allow HXA to capture information."},
      {101, "\n" + present + indent + update + indent + "Agent to allow HXA to capture complete information." + indent +
                "Sending the HXA output without this information may compromise the ability of KVR to perform" +
                indent + "complete problem determination. \n"                      },
  };
  RecordingLog log;
  arcconf::LogDriverMismatch(&log);
  EXPECT_EQ(log.entries, expected);
}

}  // namespace
