#include "platform/device_setup.h"

#include <gtest/gtest.h>

#include "tests/support/recording_log.h"

namespace {

TEST(DeviceSetup, FindsNothingInASlotWithoutAPresentDevice) {
  RecordingLog log;
  EXPECT_EQ(LookupSlotDevice(&log, 1987654321), "");
  EXPECT_EQ(log.entries, std::vector<LogEntry>{});
}

}  // namespace
