#include "publish/publish_statistics.h"

#include <gtest/gtest.h>

#include "tests/support/publishing.h"

namespace {

constexpr const char* kSubStat = "KVRSG_zxSCSISubStatData";
constexpr const char* kDeviceData = "KVRSG_zxSCSIDeviceData";
constexpr const char* kBadStripe = "KVRSG_BadStripeData";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";

const LogEntry kBadStripesExist = {100, "There exist bad stripes in Logical Drive of Zentraxis."};
const NKVRHXA20::TCIMDateTime kTime(2005, 3, 15, 14, 2, 33, 0, 0);

TEST(PublishStatistics, PublishEachFieldUnderItsOwnNameAsItWasPrinted) {
  Publishing host;
  ZenxController& controller = host.AddController("1");
  AddNamed(controller.SubStats).StatisticTime = kTime;
  AddNamed(controller.DeviceEvents).StatisticTime = kTime;
  AddNamed(controller.BadStripes);
  host.Run(PublishSubStats, kSubStat);
  host.Run(PublishDeviceData, kDeviceData);
  host.Run(PublishBadStripes, kBadStripe);
  const std::string time = "StatisticTime = datetime 20050315140233.000000+000";
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kSubStat, AsPrinted, {time}));
  EXPECT_TRUE(IsNamedAfterFields(
      host.nameSpace, kDeviceData, AsPrinted,
      {time, "InstanceID = \"Zentraxis:1C" + AsPrinted("Channel") + "S" + AsPrinted("ScsiId") + "\""}));
  EXPECT_TRUE(IsNamedAfterFields(host.nameSpace, kBadStripe, AsPrinted,
                                 {"InstanceID = \"Zentraxis:1LD" + AsPrinted("LogicalDrive") + "\""}));
}

void AddBadStripes(ZenxController& controller, const std::string& drive, const std::string& count) {
  ZenxBstData& badStripes = Add(controller.BadStripes);
  badStripes.ControllerNum = controller.ControllerNum;
  badStripes.LogicalDrive = drive;
  badStripes.NumBadStripes = count;
}

void AddLogicalDisk(Publishing& host, const std::string& controller, const std::string& drive) {
  host.nameSpace.Add(kLogicalDisk, {"ControllerNum", controller, "LogicalDriveNum", drive});
}

TEST(PublishStatistics, AControllerWhoseBadStripesAreAll0PublishesThemWithoutALogEntry) {
  Publishing host;
  ZenxController& controller = host.AddController("1");
  AddBadStripes(controller, "1", "0");
  AddBadStripes(controller, "2", "0");
  host.Run(PublishBadStripes, kBadStripe);
  EXPECT_EQ(host.nameSpace.Published(kBadStripe, "InstanceID"), (Properties{"Zentraxis:1LD1", "Zentraxis:1LD2"}));
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishStatistics, ACountOf3IsLoggedOnceForAnyNumberOfSuchRecords) {
  Publishing host;
  for (const char* const number : {"1", "2"}) {
    ZenxController& controller = host.AddController(number);
    AddBadStripes(controller, "1", "3");
    AddBadStripes(controller, "2", "0");
    AddBadStripes(controller, "3", "3");
  }
  host.Run(PublishBadStripes, kBadStripe);
  EXPECT_EQ(host.nameSpace.Published(kBadStripe).size(), 6U);
  EXPECT_EQ(host.log.entries, Entries{kBadStripesExist});
}

TEST(PublishStatistics, ACountOtherThanTheText0CountsAsBad) {
  for (const char* const count : {"", "00", "1"}) {
    Publishing host;
    AddBadStripes(host.AddController("1"), "1", count);
    host.Run(PublishBadStripes, kBadStripe);
    EXPECT_EQ(host.log.entries, Entries{kBadStripesExist}) << count;
  }
}

TEST(PublishStatistics, OnlyAControllerWithoutBadStripesPublishes0ForEachLogicalDisk) {
  Publishing host;
  host.AddController("1");
  AddBadStripes(host.AddController("2"), "1", "0");
  host.AddController("3");  // without logical disks
  AddLogicalDisk(host, "1", "1");
  AddLogicalDisk(host, "2", "1");
  AddLogicalDisk(host, "11", "1");
  AddLogicalDisk(host, "1", "2");
  host.Run(PublishBadStripes, kBadStripe);
  const auto badStripes = [](const std::string& controller, const std::string& drive) {
    return Properties{"InstanceID = \"Zentraxis:" + controller + "LD" + drive + '"',
                      "ControllerNum = \"" + controller + '"', "LogicalDrive = \"" + drive + '"',
                      "NumBadStripes = \"0\""};
  };
  EXPECT_EQ(host.nameSpace.Published(kBadStripe),
            (Instances{badStripes("1", "1"), badStripes("1", "2"), badStripes("2", "1")}));
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishStatistics, WithoutRecordsNothingIsPublishedOrLogged) {
  Publishing host;
  host.AddController("1");
  host.ExpectNothing(PublishSubStats, kSubStat, {});
  host.ExpectNothing(PublishDeviceData, kDeviceData, {});
  host.ExpectNothing(PublishBadStripes, kBadStripe, {});
}

}  // namespace
