#include "plugin/host_interface/date_time.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plugin/host_interface/exception.h"

namespace {

using NKVRHXA20::TCIMDateTime;
using NKVRHXA20::THXAException;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using testing::ThrowsMessage;

TEST(DateTime, ReturnsTheTextThatItWasMadeFrom) {
  for (const char* const text : {"20260305123015.250000+060", "00000101000000.000000+000", "99991231235959.999999-999",
                                 "20240229000000.000000-300", "20000229000000.000000+000"}) {
    EXPECT_EQ(TCIMDateTime(text).ToString(), text);
  }
}

TEST(DateTime, WritesImpossibleNumbersUnchanged) {
  EXPECT_EQ(TCIMDateTime(2026, 3, 5, 12, 30, 15, 250000, 60).ToString(), "20260305123015.250000+060");
  EXPECT_EQ(TCIMDateTime(2026, 0, 0, 0, 0, 0, 0, -300).ToString(), "20260000000000.000000-300");
  EXPECT_EQ(TCIMDateTime(2026, 13, 32, 25, 61, 61, 0, 0).ToString(), "20261332256161.000000+000");
  EXPECT_EQ(TCIMDateTime().ToString(), "00000000000000.000000+000");
}

TEST(DateTime, NumbersThatTheFormHasNoRoomForLengthenIt) {
  EXPECT_EQ(TCIMDateTime(65535, 65535, 4294967295U, 65535, 65535, 65535, 4294967295U, -32768).ToString(),
            "65535655354294967295655356553565535.4294967295-32768");
}

struct RejectedCase {
  const char* text;
  const char* reason;
};

TEST(DateTime, RejectsATextThatIsNotADateAndTimeWithAReason) {
  constexpr RejectedCase kRejected[] = {
      {"",                           "25 characters"       },
      {"20260305123015.250000+06",   "25 characters"       },
      {"20260305123015.250000+0600", "25 characters"       },
      {"20260305123015,250000+060",  "point"               },
      {"20260305123015.250000:060",  "sign"                },
      {"2O260305123015.250000+060",  "year"                },
      {"20260005123015.250000+060",  "month"               },
      {"20261305123015.250000+060",  "month"               },
      {"20260300123015.250000+060",  "day"                 },
      {"20260332123015.250000+060",  "day"                 },
      {"20260229123015.250000+060",  "no such day"         },
      {"19000229123015.250000+060",  "no such day"         },
      {"20260431123015.250000+060",  "no such day"         },
      {"20260305243015.250000+060",  "hour"                },
      {"20260305126015.250000+060",  "minute"              },
      {"20260305123060.250000+060",  "second"              },
      {"20260305123015.25000*+060",  "microseconds"        },
      {"20260305123015.250000+0 0",  "UTC offset"          },
      {"-2026030512301.250000+060",  "year is not a number"},
  };
  for (const RejectedCase& one : kRejected) {
    EXPECT_THAT([&] { TCIMDateTime{std::string(one.text)}; },
                ThrowsMessage<THXAException>(
                    AllOf(StartsWith(std::string("\"") + one.text + "\" is not"), HasSubstr(one.reason))))
        << one.text;
  }
}

}  // namespace
