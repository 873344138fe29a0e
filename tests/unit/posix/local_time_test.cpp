#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>

#include "host/hxacore/host_services.h"
#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;
using testing::AllOf;
using testing::Ge;
using testing::Le;

class LocalTime : public testing::Test {
 protected:
  ~LocalTime() override {
    unsetenv("TZ");
    tzset();
  }

  static std::string InZone(const char* zone) {
    SetVariable("TZ", zone);
    tzset();
    return RealServices().localTime().ToString();
  }
};

TEST_F(LocalTime, ContainsTheOffsetOfTheZone) {
  EXPECT_EQ(InZone("XXX-14").substr(21), "+840");
  EXPECT_EQ(InZone("XXX12").substr(21), "-720");
}

// A CIM date and time has room for three digits; systems accept zones up to a day from UTC, and more.
TEST_F(LocalTime, IsUtcIfTheOffsetOfTheZoneHasTooManyMinutes) {
  for (const char* zone : {"XXX-24", "XXX24", "XXX-16:40"}) {
    const std::string before = InZone("UTC0");
    const std::string local = InZone(zone);
    EXPECT_EQ(local.substr(21), "+000") << zone;
    EXPECT_THAT(local, AllOf(Ge(before), Le(InZone("UTC0")))) << zone;
  }
}

}  // namespace
