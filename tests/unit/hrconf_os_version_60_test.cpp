#include "tools/hrconf/os_version_60.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/recording_log.h"

namespace {

TEST(HrconfOsVersion60, IsAWindowsNtSystemOfVersionSixPointNoughtAlone) {
  RecordingLog log;
  EXPECT_TRUE(hrconf::IsOsVersion60(&log, [] { return OsVersion{true, 6, 0}; }));
  EXPECT_FALSE(hrconf::IsOsVersion60(&log, [] { return OsVersion{false, 6, 0}; }));
  EXPECT_FALSE(hrconf::IsOsVersion60(&log, [] { return OsVersion{true, 6, 1}; }));
  EXPECT_FALSE(hrconf::IsOsVersion60(&log, [] { return OsVersion{true, 5, 0}; }));
  EXPECT_FALSE(hrconf::IsOsVersion60(&log, [] { return OsVersion{true, 10, 0}; }));
  EXPECT_EQ(log.entries, std::vector<LogEntry>());
}

TEST(HrconfOsVersion60, LogsASystemThatCannotSayAndTakesItForAnother) {
  RecordingLog log;
  EXPECT_FALSE(hrconf::IsOsVersion60(&log, []() -> OsVersion { throw std::runtime_error("no version"); }));
  EXPECT_EQ(log.entries, (std::vector<LogEntry>{
                             {0,
                              "Can not get OS version from GetVersionEx(), please report the issue "
                              "to customer service to fix it!"}
  }));
}

}  // namespace
