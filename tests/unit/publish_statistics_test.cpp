#include "publish/publish_statistics.h"

#include <gtest/gtest.h>

#include "tests/support/log_fields.h"
#include "tests/support/publishing.h"

namespace {

using Properties = std::vector<std::string>;
using Instances = std::vector<Properties>;
using Entries = std::vector<LogEntry>;

constexpr const char* kSubStat = "KVRSG_zxSCSISubStatData";
constexpr const char* kDeviceData = "KVRSG_zxSCSIDeviceData";
constexpr const char* kBadStripe = "KVRSG_BadStripeData";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";

const LogEntry kBadStripesExist = {100, "There exist bad stripes in Logical Drive of Zentraxis."};
const NKVRHXA20::TCIMDateTime kTime(2005, 3, 15, 14, 2, 33, 0, 0);

TEST(PublishStatistics, PublishesASubStatusFieldByFieldAsItWasPrinted) {
  Publishing host;
  ZenxSubStatData& status = Add(host.AddController("1").SubStats);
  NameFields<ZenxSubStatData>(status, kSubStatFields);
  status.StatisticTime = kTime;
  host.Run(PublishSubStats, kSubStat);
  EXPECT_EQ(host.nameSpace.Published(kSubStat),
            (Instances{
                {SameNameAsPrinted("ControllerNum"), "StatisticTime = datetime 20050315140233.000000+000",
                 SameNameAsPrinted("Channel"), SameNameAsPrinted("ScsiId"), SameNameAsPrinted("InstanceID"),
                 SameNameAsPrinted("Params"), SameNameAsPrinted("Req_Off"), SameNameAsPrinted("Max_Txer_P"),
                 SameNameAsPrinted("Cur_Txer_p")}
  }));
}

TEST(PublishStatistics, PublishesDeviceDataUnderTheControllersNumberChannelAndTarget) {
  Publishing host;
  ZenxEventData& device = Add(host.AddController("1").DeviceEvents);
  NameFields<ZenxEventData>(device, kDeviceDataFields);
  device.StatisticTime = kTime;
  host.Run(PublishDeviceData, kDeviceData);
  EXPECT_EQ(host.nameSpace.Published(kDeviceData),
            (Instances{
                {"InstanceID = \"Zentraxis:1C" + AsPrinted("Channel") + "S" + AsPrinted("ScsiId") + "\"",
                 "StatisticTime = datetime 20050315140233.000000+000", SameNameAsPrinted("ControllerNum"),
                 SameNameAsPrinted("Channel"), SameNameAsPrinted("Misc"), SameNameAsPrinted("NumHardErrors"),
                 SameNameAsPrinted("NumParityErrors"), SameNameAsPrinted("NumSoftErrors"), SameNameAsPrinted("PFA"),
                 SameNameAsPrinted("ScsiId")}
  }));
}

TEST(PublishStatistics, PublishesBadStripesFieldByField) {
  Publishing host;
  NameFields<ZenxBstData>(Add(host.AddController("1").BadStripes), kBadStripeFields);
  host.Run(PublishBadStripes, kBadStripe);
  EXPECT_EQ(host.nameSpace.Published(kBadStripe),
            (Instances{
                {"InstanceID = \"Zentraxis:1LD" + AsPrinted("LogicalDrive") + "\"", SameNameAsPrinted("ControllerNum"),
                 SameNameAsPrinted("LogicalDrive"), SameNameAsPrinted("NumBadStripes")}
  }));
}

void AddBadStripes(ZenxController& controller, const std::string& drive, const std::string& count) {
  ZenxBstData& badStripes = Add(controller.BadStripes);
  badStripes.ControllerNum = controller.ControllerNum;
  badStripes.LogicalDrive = drive;
  badStripes.NumBadStripes = count;
}

void AddLogicalDisk(Publishing& host, const std::string& controller, const std::string& drive) {
  host.nameSpace.Add(kLogicalDisk, {
                                       {"ControllerNum",   controller},
                                       {"LogicalDriveNum", drive     }
  });
}

TEST(PublishStatistics, AControllerWhoseBadStripesAllSay0PublishesThemAndTellsNobody) {
  Publishing host;
  ZenxController& controller = host.AddController("1");
  AddBadStripes(controller, "1", "0");
  AddBadStripes(controller, "2", "0");
  host.Run(PublishBadStripes, kBadStripe);
  EXPECT_EQ(host.nameSpace.Published(kBadStripe, "InstanceID"), (Properties{"Zentraxis:1LD1", "Zentraxis:1LD2"}));
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishStatistics, ACountOf3IsToldOnceHoweverManySuchRecordsThereAre) {
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

TEST(PublishStatistics, AControllerWithoutBadStripesGets0ForEachOfItsLogicalDisksAndOneWithThemGetsNone) {
  Publishing host;
  host.AddController("1");
  AddBadStripes(host.AddController("2"), "1", "0");
  host.AddController("3");  // without logical disks
  AddLogicalDisk(host, "1", "1");
  AddLogicalDisk(host, "2", "1");
  AddLogicalDisk(host, "11", "1");
  AddLogicalDisk(host, "1", "2");
  host.Run(PublishBadStripes, kBadStripe);
  EXPECT_EQ(
      host.nameSpace.Published(kBadStripe),
      (Instances{
          {"InstanceID = \"Zentraxis:1LD1\"", "ControllerNum = \"1\"", "LogicalDrive = \"1\"", "NumBadStripes = \"0\""},
          {"InstanceID = \"Zentraxis:1LD2\"", "ControllerNum = \"1\"", "LogicalDrive = \"2\"", "NumBadStripes = \"0\""},
          {"InstanceID = \"Zentraxis:2LD1\"", "ControllerNum = \"2\"", "LogicalDrive = \"1\"",
           "NumBadStripes = \"0\""                                                                                    }
  }));
  EXPECT_EQ(host.log.entries, Entries{});
}

TEST(PublishStatistics, WithoutRecordsNothingIsPublishedOrLogged) {
  Publishing host;
  host.AddController("1");
  host.Run(PublishSubStats, kSubStat);
  EXPECT_EQ(host.log.entries, Entries{});
  host.Run(PublishDeviceData, kDeviceData);
  EXPECT_EQ(host.log.entries, Entries{});
  host.Run(PublishBadStripes, kBadStripe);
  EXPECT_EQ(host.log.entries, Entries{});
  for (const char* const name : {kSubStat, kDeviceData, kBadStripe}) {
    EXPECT_TRUE(host.nameSpace.Published(name).empty()) << name;
  }
}

}  // namespace
