#include "host/hxahost/result/property_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

TEST(PropertyValues, ShowsEveryKindOfValue) {
  FilledRepository repository;
  const TCIMReference group = repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "G1");
  repository.Publish("KVRSG_LogRecord_HardEvent", "NumEntries", " 2\r\n", "MessageTimestamp",
                     TCIMDateTime(2026, 3, 5, 12, 30, 15, 0, -330), "HexHardEvent",
                     TCIMValue(kCIMUInt32, 0, {TCIMValue(0xdeadbeefU), TCIMValue(7U)}));
  repository.Publish("KVRSG_zxFirmwareVersion", "SoftwareElementState", static_cast<unsigned short>(3));
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({"a\x1b", " b\n"}));
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", group);
  const hxahost::InstanceList instances = repository.Instances();
  EXPECT_EQ(ShownText(*instances[1], "NumEntries"), "2");
  EXPECT_EQ(ShownText(*instances[1], "MessageTimestamp"), "2026-03-05 12:30:15 -05:30");
  EXPECT_EQ(ShownText(*instances[1], "HexHardEvent"), "0xdeadbeef, 0x00000007");
  EXPECT_EQ(ShownText(*instances[1], "LogName"), "") << "declared and not set";
  EXPECT_EQ(ShownText(*instances[1], "Nothing"), "") << "not declared";
  EXPECT_EQ(ShownText(*instances[2], "SoftwareElementState"), "3");
  EXPECT_EQ(ShownText(*instances[3], "RawResults"), "a\\x1b, b");
  EXPECT_THAT(ShownText(*instances[4], "Dependent"), testing::StartsWith("KVRSG_zxDiskGroup.CollectionID=\"G1\","));
}

TEST(PropertyValues, ShowsATimeOfAnotherFormUnchanged) {
  EXPECT_EQ(ReadableTime("20261121070000.000000+000"), "2026-11-21 07:00:00 +00:00");
  EXPECT_EQ(ReadableTime("20260021070000.000000+840"), "2026-00-21 07:00:00 +14:00");
  EXPECT_EQ(ReadableTime("2026112107000000.000000+000"), "2026112107000000.000000+000");
}

TEST(PropertyValues, CountsTheSecondsSince1970InAnyTimeZone) {
  EXPECT_EQ(SecondsSince1970("19700101000000.000000+000"), 0);
  EXPECT_EQ(SecondsSince1970("19700102010000.999999+060"), 86400);
  EXPECT_EQ(SecondsSince1970("19691231190000.000000-300"), 0);
  EXPECT_EQ(SecondsSince1970("20260021070000.000000+000"), std::nullopt);
  EXPECT_EQ(SecondsSince1970("20260231070000.000000+000"), std::nullopt);
  EXPECT_EQ(SecondsSince1970(""), std::nullopt);
}

TEST(PropertyValues, CountsTheElementsOfAnArray) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "a", "RawResults", Texts({"1", "2"}));
  const auto instance = repository.Instances().front();
  EXPECT_EQ(ElementCount(*instance, "RawResults"), 2U);
  EXPECT_EQ(ElementCount(*instance, "Command"), 0U);
  EXPECT_EQ(ElementCount(*instance, "Nothing"), 0U);
}

}  // namespace
