#include "tools/qcmdrun/qcmdrun_adapter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "logs/event_records.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/services.h"
#include "tests/support/sample_text.h"
#include "tests/support/scripted_services.h"
#include "tests/support/tool_text.h"
#include "tools/qcmdrun/status_parser.h"

namespace {

using NKVRHXA20::THXAException;
using NKVRHXA20::TRootObject;

using Texts = std::vector<std::string>;

const std::string kNoneFound = "Found 0 KVR Zentraxis controller(s)\r\n";
const std::string kAborted = "Command aborted.\r\n";

const std::string kControllerSection = R"(Controller information
-----
Controller type : Zentraxis C4
-----
)";

const std::string kDriveSections = R"(Logical drive information
-----
Logical drive number 1
Status of logical drive : Okay
RAID level : 5
Size (in MB) : 1
Write cache status : WB
Number of chunks : 3
Stripe-unit size : 8
Access blocked : No
Part of array : A
-----
Array A stripe order (Channel/SCSI ID) : 1,0 1,1 1,2
-----
)";

const std::string kDeviceSection = R"(Physical device information
-----
Channel #1:
Initiator
Target on SCSI ID 0
Device is a Hard disk
SCSI ID : 0
Command completed successfully.
)";

void RejectStatus(ZenxController&, CollectedData&) { throw THXAException("no status"); }

void RejectBadStripe(ZenxBstData&, const CollectedData&, std::string_view) { throw THXAException("no bad stripe"); }

// A machine whose utility has only controller 1 and answers everything for it. Each test changes one thing.
class QcmdrunDataTest : public testing::Test {
 protected:
  QcmdrunDataTest() {
    SetNoneFrom(1);
    SetController(1);
  }

  // The utility has only controllers below this number.
  void SetNoneFrom(int first) {
    for (int number = first; number <= 8; ++number) services_.answers[Run("getconfig", number, "al")] = kNoneFound;
  }

  void SetController(int number) {
    Answer("getconfig", "al", kControllerSection + kDriveSections + kDeviceSection, number);
    Answer("getstatus", "device", "Current/most recent operation : None\nCommand completed successfully.\n", number);
    Answer("getbst", "device", "Get bad stripe information\nLogical drive 1 - 2\nCommand completed.\n", number);
    Answer("getevent", "device",
           "Device event table:\n+-+\n|heads|\n+-+\n| 1 | 0 | 0 |\nCommand completed successfully.\n", number);
    Answer("getevent", "ddd", "+---+\n" + DddRow("03", "0") + "Command completed successfully.\n", number);
    Answer("getevent", "soft", "Controller Soft Event Log\n0001\nCommand completed successfully.\n", number);
    Answer("getevent", "hard", "Controller Hard Event Log\n0002\nCommand completed successfully.\n", number);
    Answer("getsubstat", "device", "A:1 C:1 I:0 PARAMS:0 \nCommand completed successfully.\n", number);
  }

  static std::string DddRow(const std::string& month, const std::string& id) {
    return "| " + month + "/15/2005 | 14:02:33 | 1 | " + id + " | 07 | gone\n";
  }

  // "qcmdrun getconfig 1 al"
  static std::string Run(const std::string& command, int number, const std::string& option) {
    return "qcmdrun " + command + " " + std::to_string(number) + " " + option;
  }

  void Answer(const std::string& command, const std::string& option, const std::string& text, int number = 1) {
    services_.answers[Run(command, number, option)] = CrLf(text);
  }

  QcmdrunData& Collect(unsigned firstControllerNumber = 0) {
    data_.Collect(firstControllerNumber);
    return data_;
  }

  std::shared_ptr<ZenxController> OnlyController() {
    const ControllerList controllers = data_.GetControllers();
    return controllers.size() == 1 ? controllers.front() : nullptr;
  }

  Texts ControllerNumbers() const {
    Texts numbers;
    for (const auto& controller : data_.GetControllers()) numbers.push_back(controller->ControllerNum);
    return numbers;
  }

  Texts RawCommands() const {
    Texts commands;
    for (const auto& raw : data_.GetRawData()) commands.push_back(raw->Command);
    return commands;
  }

  // How often a text was logged.
  std::ptrdiff_t Logged(const std::string& text) const {
    const Texts texts = services_.LogTexts();
    return std::count(texts.begin(), texts.end(), text);
  }

  bool Ran(const std::string& run) const {
    return std::find(services_.runs.begin(), services_.runs.end(), run) != services_.runs.end();
  }

  ScriptedServices services_;
  QcmdrunData data_{TRootObject::GetCoreLogger()};
};

TEST_F(QcmdrunDataTest, NumbersControllers1And3As5And7After4ButTheirRawRecords1And3) {
  services_.answers[Run("getconfig", 2, "al")] = kAborted;
  SetController(3);
  Collect(4);
  EXPECT_EQ(ControllerNumbers(), (Texts{"5", "7"}));
  const auto controller = data_.GetControllers().back();
  EXPECT_EQ(controller->LogicalDevices[0]->ControllerNum, "7");
  EXPECT_EQ(controller->StripeOrders[0]->CollectionID, "Zentraxis7ArrayA");
  EXPECT_EQ(controller->PhysicalDevices[0]->ControllerNum, "7");
  EXPECT_EQ(controller->BadStripes[0]->ControllerNum, "7");
  EXPECT_EQ(controller->DeviceEvents[0]->ControllerNum, "7");
  EXPECT_EQ(controller->DddEvents[0]->Controller, "7");
  EXPECT_EQ(controller->SoftEvents->Controller, "7");
  EXPECT_EQ(controller->HardEvents->Controller, "7");
  EXPECT_EQ(RawCommands()[0], "zenx//qcmdrun.exe getconfig 1 al");
  EXPECT_EQ(RawCommands()[8], "zenx//qcmdrun.exe getconfig 3 al");
  EXPECT_EQ(RawCommands().size(), 16u);
}

TEST_F(QcmdrunDataTest, RecordsTheTextForAFailedRunAndContinuesWithoutAController) {
  services_.answers.erase(Run("getconfig", 1, "al"));
  Collect();
  EXPECT_EQ(ControllerNumbers(), Texts{});
  EXPECT_EQ(RawCommands().size(), 8u);
  EXPECT_EQ(data_.GetRawData()[0]->RawResults, Texts{});
  EXPECT_EQ(Logged("Qcmdrun aborted: zenx//qcmdrun.exe is not here"), 3);
  EXPECT_EQ(Logged("configData is not empty!\n"), 1);
  EXPECT_EQ(Logged("Found QCMRUN Controller information"), 0);
}

TEST_F(QcmdrunDataTest, EndsBothPassesAtTheNumberThatReportsNoController) {
  SetController(2);
  services_.answers[Run("getconfig", 1, "al")] = kNoneFound;
  Collect();
  EXPECT_FALSE(Ran("qcmdrun getconfig 2 al"));
  EXPECT_EQ(ControllerNumbers(), Texts{});
}

TEST_F(QcmdrunDataTest, SkipsAConfigurationWithoutControllerInformation) {
  Answer("getconfig", "al", kDriveSections + kDeviceSection);
  SetController(2);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"2"}));
  EXPECT_EQ(RawCommands().size(), 16u);
}

// Without the line feed, the scanner does not see the line, but the text contains the words.
TEST_F(QcmdrunDataTest, SkipsAConfigurationThatEndsInsideItsControllerInformationLine) {
  services_.answers[Run("getconfig", 1, "al")] = "head\r\nController information";
  Collect();
  EXPECT_EQ(ControllerNumbers(), Texts{});
  EXPECT_EQ(Logged("Found QCMRUN Controller information"), 0);
}

TEST_F(QcmdrunDataTest, NeverPublishesAControllerWithoutDevicesNorAsksForItsStatusButReadsItsLogs) {
  Answer("getconfig", "al", kControllerSection + kDriveSections + "Command completed successfully.\n");
  services_.runs.clear();
  Collect();
  EXPECT_EQ(ControllerNumbers(), Texts{});
  const auto secondPass = services_.runs.begin() + 10;
  EXPECT_EQ(Texts(secondPass, services_.runs.end()), (Texts{
                                                         "qcmdrun getconfig 1 al",
                                                         "qcmdrun getbst 1 device",
                                                         "qcmdrun getevent 1 device",
                                                         "qcmdrun getevent 1 ddd",
                                                         "qcmdrun getevent 1 soft",
                                                         "qcmdrun getevent 1 hard",
                                                         "qcmdrun getsubstat 1 device",
                                                         "qcmdrun getconfig 2 al",
                                                     }));
}

TEST_F(QcmdrunDataTest, EndsCollectionAndDropsTheControllerWhenItsStatusIsRejected) {
  SetController(2);
  QcmdrunParsers parsers;
  parsers.status = [](ZenxController& controller, CollectedData& text) {
    if (controller.ControllerNum == "2") RejectStatus(controller, text);
    qcmdrun::ParseStatus(controller, text);
  };
  SetController(3);
  data_ = QcmdrunData(TRootObject::GetCoreLogger(), parsers);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"1"}));
  EXPECT_EQ(services_.log.back(), (LogEntry{3, "status data is junk: Quit status data collection"}));
  EXPECT_EQ(services_.runs.back(), "qcmdrun getstatus 2 device");
  EXPECT_EQ(Logged("Parse For QCMDRUN Physical Devices\n"), 2);
  EXPECT_EQ(RawCommands().size(), 24u);
}

TEST_F(QcmdrunDataTest, LeavesBadStripesAndContinuesWhenOneIsRejected) {
  QcmdrunParsers parsers;
  parsers.badStripe = RejectBadStripe;
  data_ = QcmdrunData(TRootObject::GetCoreLogger(), parsers);
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  EXPECT_TRUE(controller->BadStripes.empty());
  EXPECT_EQ(controller->DeviceEvents.size(), 1u);
  EXPECT_EQ(Logged("Bad Stripe data is junk: Quit BST data collection"), 1);
}

TEST_F(QcmdrunDataTest, LetsTheFailureOfACutOffAnswerPass) {
  Answer("getsubstat", "device", "A:1 C:1 I:0 PARAMS:0 \n");
  EXPECT_THROW(Collect(), std::out_of_range);
  EXPECT_EQ(ControllerNumbers(), (Texts{"1"})) << "complete objects before it stay";
}

TEST_F(QcmdrunDataTest, LeavesTheSlotDeviceEmptyWhenNoPresentDeviceHasTheSlotNumber) {
  Answer("getconfig", "al", kControllerSection + "Controller slot information : 1987654321\n" + kDeviceSection);
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  EXPECT_EQ(controller->ControllerSlotInfo, "1987654321");
  EXPECT_EQ(controller->SlotDeviceId, "");
}

// Unlike the answers of the other utilities, an incomplete list ends the collection.
TEST_F(QcmdrunDataTest, FailsAtAnyCutInTheListsOfDrivesOrDevices) {
  const std::string text = SampleAnswer("qcmdrun/1/getconfig-al");
  struct Case {
    const char* before;
    bool isRead;
  };
  const Case cases[] = {
      {"Controller information",         true },
      {"Hot-spare",                      true },
      {"Access blocked",                 false},
      {"Array information",              true },
      {"   Array B",                     false},
      {"Physical device information",    true },
      {"PFA (Yes/No)",                   false},
      {"Command completed successfully", false},
  };
  for (const auto& [before, isRead] : cases) {
    services_.answers[Run("getconfig", 1, "al")] = text.substr(0, text.find(before));
    if (isRead) {
      EXPECT_NO_THROW(Collect()) << before;
    } else {
      EXPECT_THROW(Collect(), std::out_of_range) << before;
    }
  }
}

}  // namespace
