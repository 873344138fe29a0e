#include "logs/raid_mgr_zones.h"

#include <gtest/gtest.h>

namespace {

TEST(RaidMgrZones, GiveTheHoursOfTheFirstRowOfEachName) {
  struct Case {
    std::string_view zone;
    int hours;
  };
  constexpr Case kCases[] = {
      {"ADT",  -3 },
      {"EDT",  -4 },
      {"AST",  -4 },
      {"EST",  -5 },
      {"CST",  -6 },
      {"MDT",  -6 },
      {"MST",  -7 },
      {"PDT",  -7 },
      {"PST",  -8 },
      {"AKDT", -8 },
      {"ALA",  -9 },
      {"AKST", -9 },
      {"HAW",  -10},
      {"A",    1  },
      {"BST",  1  },
      {"CET",  1  },
      {"FWT",  1  },
      {"MET",  1  },
      {"MEWT", 1  },
      {"SWT",  1  },
      {"EET",  2  },
      {"B",    2  },
      {"C",    3  },
      {"ZP4",  4  },
      {"ZP5",  5  },
      {"ZP6",  6  },
      {"WAST", 7  },
      {"CCT",  8  },
      {"AWST", 8  },
      {"ACDT", 9  },
      {"JST",  9  },
      {"ACST", 10 },
      {"EAST", 10 },
      {"AEST", 10 },
      {"AEDT", 11 },
      {"IDLE", 12 },
      {"NZST", 12 },
      {"NZT",  12 },
  };
  for (const Case& one : kCases) EXPECT_EQ(HoursFromUtc(one.zone), one.hours) << one.zone;
}

TEST(RaidMgrZones, CdtIsMinusFiveAndNeverTen) { EXPECT_EQ(HoursFromUtc("CDT"), -5); }

TEST(RaidMgrZones, ANameIsComparedWholeAndInExactCase) {
  for (const std::string_view zone : {"", "ES", "ESTX", "est", " EST", "EST ", "EST\n", "UTC", "GMT"}) {
    EXPECT_EQ(HoursFromUtc(zone), 0) << zone;
  }
}

}  // namespace
