#include "logs/raid_mgr_zones.h"

#include <gtest/gtest.h>

namespace {

TEST(RaidMgrZones, GiveTheHoursOfTheFirstRowOfEachName) {
  EXPECT_EQ(HoursFromUtc("ADT"), -3);
  EXPECT_EQ(HoursFromUtc("CDT"), -5);
  EXPECT_EQ(HoursFromUtc("BST"), 1);
  EXPECT_EQ(HoursFromUtc("HAW"), -10);
  EXPECT_EQ(HoursFromUtc("A"), 1);
  EXPECT_EQ(HoursFromUtc("NZT"), 12);
}

TEST(RaidMgrZones, ANameIsComparedWholeAndInExactCase) {
  for (const std::string_view zone : {"", "ES", "ESTX", "est", " EST", "EST ", "EST\n", "UTC", "GMT"}) {
    EXPECT_EQ(HoursFromUtc(zone), 0) << zone;
  }
}

}  // namespace
