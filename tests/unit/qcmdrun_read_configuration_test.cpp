#include "tools/qcmdrun/read_configuration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "tests/support/recording_log.h"
#include "tests/support/sample_text.h"
#include "tests/support/tool_text.h"

namespace {

class QcmdrunReadConfiguration : public testing::Test {
 protected:
  QcmdrunReadConfiguration() { controller_.ControllerNum = "3"; }

  void ReadLogicalDrives(const std::string& text) {
    CollectedData scanner(&log_, CrLf(text));
    qcmdrun::ReadLogicalDrives(controller_, scanner);
  }

  void ReadStripeOrders(const std::string& text) {
    CollectedData scanner(&log_, CrLf(text));
    qcmdrun::ReadStripeOrders(controller_, scanner);
  }

  bool ReadPhysicalDevices(const std::string& text) {
    CollectedData scanner(&log_, CrLf(text));
    return qcmdrun::ReadPhysicalDevices(controller_, scanner);
  }

  std::vector<std::string> DriveNumbers() const {
    std::vector<std::string> numbers;
    for (const auto& drive : controller_.LogicalDevices) numbers.push_back(drive->LogicalDriveNum);
    return numbers;
  }

  // "channel/SCSI ID" of each device.
  std::vector<std::string> Devices() const {
    std::vector<std::string> devices;
    for (const auto& device : controller_.PhysicalDevices) {
      devices.push_back(device->Channel + "/" + std::string(CollectedData::TrimLeft(device->ScsiId)));
      devices.back().resize(devices.back().find_last_not_of("\r\n") + 1);
    }
    return devices;
  }

  RecordingLog log_;
  ZenxController controller_{&log_};
};

using Entries = std::vector<LogEntry>;

// A drive's lines after its number.
const std::string kDrive = R"(Status of logical drive : Okay
RAID level : 5
Size (in MB) : 1
Write cache status : WB
Number of chunks : 3
Stripe-unit size : 8
Access blocked : No
Part of array : A
)";

TEST_F(QcmdrunReadConfiguration, AttachesDrivesForAsLongAsLinesWithANumberFollow) {
  ReadLogicalDrives("Logical drive information\n-----\n  Logical drive number 1\n" + kDrive +
                    "  Logical drive number 12\n" + kDrive + "-----\n  Logical drive number 3\n" + kDrive + "-----\n");
  EXPECT_EQ(DriveNumbers(), (std::vector<std::string>{"1", "12"}));
  EXPECT_EQ(controller_.LogicalDevices[1]->ControllerNum, "3");
  EXPECT_EQ(log_.entries, (Entries{
                              {3, "Parsing for QCMRUN logical drive information\n"},
                              {3, "Found QCMDRUN Logical Drive Information\n"     }
  }));
}

TEST_F(QcmdrunReadConfiguration, UsesThePreviousNumberForALineWithoutABlankAfterTheLabel) {
  ReadLogicalDrives("Logical drive information\n-----\nLogical drive number: 9\n" + kDrive +
                    "Logical drive number 4\n" + kDrive + "Logical drive number: 5\n" + kDrive + "-----\n");
  EXPECT_EQ(DriveNumbers(), (std::vector<std::string>{"", "4", "4"}));
}

TEST_F(QcmdrunReadConfiguration, StartsTheNumberBeforeAnewForEachController) {
  ReadLogicalDrives("Logical drive information\n-----\nLogical drive number 4\n" + kDrive + "-----\n");
  controller_.LogicalDevices.clear();
  ReadLogicalDrives("Logical drive information\n-----\nLogical drive number: 9\n" + kDrive + "-----\n");
  EXPECT_EQ(DriveNumbers(), (std::vector<std::string>{""}));
}

TEST_F(QcmdrunReadConfiguration, AttachesNoDriveWithoutTheSection) {
  ReadLogicalDrives("Controller information\n-----\nLogical drive number 1\n" + kDrive + "-----\n");
  EXPECT_EQ(DriveNumbers(), (std::vector<std::string>{}));
  EXPECT_EQ(log_.entries, (Entries{
                              {3, "Parsing for QCMRUN logical drive information\n"}
  }));
}

TEST_F(QcmdrunReadConfiguration, AttachesNoDriveWhereTheNumberIsNotOnTheSecondLine) {
  ReadLogicalDrives("Logical drive information\n-----\n\nLogical drive number 1\n" + kDrive + "-----\n");
  EXPECT_EQ(DriveNumbers(), (std::vector<std::string>{}));
}

TEST_F(QcmdrunReadConfiguration, AttachesStripeOrdersThatFollowOneAnother) {
  ReadStripeOrders(R"(Array information
  Array A stripe order (Channel/SCSI ID) : 1,0 1,1
                                           1,2
  Array B stripe order (Channel/SCSI ID) : 2,0
-----
  Array C stripe order (Channel/SCSI ID) : 2,1
-----
)");
  ASSERT_EQ(controller_.StripeOrders.size(), 2u);
  EXPECT_EQ(controller_.StripeOrders[0]->StripeOrder, " 1,0 1,1 1,2\r\n");
  EXPECT_EQ(controller_.StripeOrders[0]->CollectionID, "Zentraxis3ArrayA");
  EXPECT_EQ(controller_.StripeOrders[1]->StripeOrder, " 2,0\r\n");
  EXPECT_EQ(controller_.StripeOrders[1]->CollectionID, "Zentraxis3ArrayB");
  EXPECT_EQ(log_.entries, (Entries{
                              {3, "Parse For  QCMDRUN Stripe Order\n"},
                              {3, "Found QCMDRUN Stripe Order Data\n"},
                              {3, "Found QCMDRUN Stripe Order Data\n"}
  }));
}

TEST_F(QcmdrunReadConfiguration, AttachesNoStripeOrderWithoutItsLabel) {
  ReadStripeOrders("Array A stripe order : 1,0\nend\n");
  EXPECT_TRUE(controller_.StripeOrders.empty());
  EXPECT_EQ(log_.entries, (Entries{
                              {3, "Parse For  QCMDRUN Stripe Order\n"}
  }));
}

// A device's lines with its ID.
std::string Device(const std::string& id) {
  return "    Target on SCSI ID " + id + "\n      Device is a Hard disk\n      SCSI ID : " + id + "\n";
}

const std::string kSection = "Physical device information\n-----\n";
const std::string kEnd = "Command completed successfully.\n";

TEST_F(QcmdrunReadConfiguration, ReadsTheDevicesOfEveryChannelWithItsNumber) {
  EXPECT_TRUE(ReadPhysicalDevices(kSection + "  Channel #1:\n  Initiator\n" + Device("0") + Device("5") +
                                  "  Channel #2:\n  Initiator\n" + Device("3") + kEnd));
  EXPECT_EQ(Devices(), (std::vector<std::string>{"1/0", "1/5", "2/3"}));
  EXPECT_EQ(controller_.PhysicalDevices[0]->ControllerNum, "3");
  EXPECT_EQ(log_.entries, (Entries{
                              {3, "Parse For QCMDRUN Physical Devices\n"}
  }));
}

TEST_F(QcmdrunReadConfiguration, WalksOverStrayLinesOneByOne) {
  struct Case {
    std::string name;
    std::string text;
    std::vector<std::string> devices;
  };
  const std::vector<Case> cases = {
      {"no device",                      kEnd,                                                      {}     },
      {"channel without a device",       "Channel #1:\nInitiator\n" + kEnd,                         {}     },
      {"stray line before the end",      "Channel #1:\nInitiator\n" + Device("0") + "\n" + kEnd,    {"1/0"}},
      {"two stray lines before the end", "Channel #1:\nInitiator\n" + Device("0") + "\n\n" + kEnd,  {"1/0"}},
      {"blank line between devices",
       "Channel #1:\nInitiator\n" + Device("0") + "\n" + Device("1") + kEnd,
       {"1/0", "1/1"}                                                                                      },
      {"stray line after the heading",   "Channel #1:\nInitiator\n\n" + Device("0") + kEnd,         {"1/0"}},
      {"device without a heading",       Device("0") + kEnd,                                        {"/0"} },
      {"heading without a colon",        "Channel #1\nInitiator\n" + Device("0") + kEnd,            {"/0"} },
      {"heading with more after it",     "Channel #1: 160 MB/s:\nInitiator\n" + Device("0") + kEnd, {"1/0"}},
      {"end after an unread heading",    "Channel #1:\nInitiator\n" + kEnd + Device("0"),           {}     },
  };
  for (const Case& walkCase : cases) {
    SCOPED_TRACE(walkCase.name);
    controller_.PhysicalDevices.clear();
    EXPECT_TRUE(ReadPhysicalDevices(kSection + walkCase.text));
    EXPECT_EQ(Devices(), walkCase.devices);
  }
}

TEST_F(QcmdrunReadConfiguration, LogsAMissingDeviceSection) {
  EXPECT_FALSE(ReadPhysicalDevices("Channel #1:\nInitiator\n" + Device("0") + kEnd));
  EXPECT_TRUE(controller_.PhysicalDevices.empty());
}

TEST_F(QcmdrunReadConfiguration, FailsWhereASectionIsCutOff) {
  EXPECT_THROW(ReadLogicalDrives("Logical drive information\n"), std::out_of_range);
  EXPECT_THROW(ReadLogicalDrives("Logical drive information\n-----\nLogical drive number 1\n"), std::out_of_range);
  EXPECT_THROW(ReadStripeOrders("A stripe order (Channel/SCSI ID) : 1,0\n"), std::out_of_range);
  EXPECT_THROW(ReadPhysicalDevices(kSection + "Channel #1:\nInitiator\n" + Device("0")), std::out_of_range);
}

TEST_F(QcmdrunReadConfiguration, ReadsAnAnswerCutAtAnyByteOrFailsInTheStatedWay) {
  const std::string text = SampleAnswer("qcmdrun/1/getconfig-al");
  std::size_t most = 0;
  for (std::size_t length = 0; length <= text.size(); ++length) {
    controller_ = ZenxController(&log_);
    CollectedData scanner(&log_, text.substr(0, length));
    try {
      qcmdrun::ReadLogicalDrives(controller_, scanner);
      qcmdrun::ReadStripeOrders(controller_, scanner);
      qcmdrun::ReadPhysicalDevices(controller_, scanner);
    } catch (const std::out_of_range&) {
      EXPECT_LT(length, text.size());
    }
    const std::size_t records =
        controller_.LogicalDevices.size() + controller_.StripeOrders.size() + controller_.PhysicalDevices.size();
    EXPECT_GE(records, most) << "more of the text gives less, at " << length;
    most = std::max(most, records);
  }
  EXPECT_EQ(most, 18u);
}

}  // namespace
