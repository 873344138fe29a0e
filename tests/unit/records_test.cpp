#include "collect/records.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "logs/event_records.h"
#include "logs/statistics_records.h"

namespace {

using Lines = std::vector<std::string>;

Lines RawResults(std::string_view output) {
  return ZenxRawData("zenx//tool.exe", "getconfig", 1, "al", output).RawResults;
}

TEST(ZenxRawData, NamesToolCommandNumberAndOption) {
  EXPECT_EQ(ZenxRawData("zenx//tool.exe", "getconfig", 12, "al", "").Command, "zenx//tool.exe getconfig 12 al");
}

TEST(ZenxRawData, LeavesTwoBlanksForControllerZero) {
  EXPECT_EQ(ZenxRawData("zenx//tool.exe", "getconfig", 0, "al", "").Command, "zenx//tool.exe getconfig  al");
}

TEST(ZenxRawData, NamesThePlaceholderForNoOptionAsItIsWritten) {
  EXPECT_EQ(ZenxRawData("zenx//tool.exe", "getversion", 1, "nuthin", "").Command, "zenx//tool.exe getversion 1 nuthin");
}

TEST(ZenxRawData, KeepsTwoOfThreeLinesWhenTheThirdHasNoLineEnd) {
  EXPECT_EQ(RawResults("one\r\ntwo\r\nthree"), (Lines{"one", "two"}));
}

TEST(ZenxRawData, KeepsNoLineOfAnOutputWithoutACarriageReturn) {
  EXPECT_EQ(RawResults("one\ntwo\n"), Lines{});
  EXPECT_EQ(RawResults(""), Lines{});
}

TEST(ZenxRawData, DropsAnyCharacterAfterACarriageReturn) {
  EXPECT_EQ(RawResults("one\rtwo\r\n"), (Lines{"one", "wo"}));
  EXPECT_EQ(RawResults("one\r\r\ntwo\r\n"), (Lines{"one", "\ntwo"}));
}

TEST(ZenxRawData, KeepsEmptyLines) { EXPECT_EQ(RawResults("\r\n\r\nend\r\n"), (Lines{"", "", "end"})); }

TEST(ZenxRawData, EndsWithACarriageReturnAtTheVeryEnd) {
  EXPECT_EQ(RawResults("one\r"), (Lines{"one"}));
  EXPECT_EQ(RawResults("\r"), (Lines{""}));
}

TEST(ZenxRawData, KeepsNulAndHighBytes) {
  EXPECT_EQ(RawResults(std::string_view("a\0\xff\r\n", 5)), (Lines{std::string("a\0\xff", 3)}));
}

template <class Record>
class Records : public testing::Test {};

using AllRecords =
    testing::Types<ZenxController, ZenxLogicalDevice, ZenxPhysicalDevice, ArrayStripeOrder, ZenxRawData, ZenxHrConfBios,
                   ZenxEventData, ZenxEventDddData, ZenxEventSoftData, ZenxEventHardData, ZenxBstData, ZenxSubStatData>;
TYPED_TEST_SUITE(Records, AllRecords, );

TYPED_TEST(Records, HaveAVirtualDestructor) { EXPECT_TRUE(std::has_virtual_destructor_v<TypeParam>); }

TEST(ZenxController, StartWithoutAnythingOnTheController) {
  const ZenxController controller(nullptr);
  EXPECT_EQ(controller.ControllerNum, "");
  EXPECT_FALSE(controller.Parsed);
  EXPECT_TRUE(controller.LogicalDevices.empty());
  EXPECT_FALSE(controller.SoftEvents);
  EXPECT_FALSE(controller.HardEvents);
}

}  // namespace
