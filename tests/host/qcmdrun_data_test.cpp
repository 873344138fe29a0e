#include "tools/qcmdrun/qcmdrun_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "logs/event_records.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/services.h"
#include "tests/support/qcmdrun_answers.h"
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

// A machine whose utility knows controller 1 alone and answers everything for it. Each test changes one thing.
class QcmdrunDataTest : public testing::Test {
 protected:
  QcmdrunDataTest() {
    SetNoneFrom(1);
    SetController(1);
  }

  // The utility has controllers below this number only.
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

  static std::string Run(const std::string& command, int number, const std::string& option) {
    return QcmdrunRun(command, number, option);
  }

  void Answer(const std::string& command, const std::string& option, const std::string& text, int number = 1) {
    services_.answers[Run(command, number, option)] = CrLf(text);
  }

  // The run of the command for controller 1 fails from now on.
  void Fail(const std::string& command, const std::string& option) { services_.answers.erase(Run(command, 1, option)); }

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

TEST_F(QcmdrunDataTest, RunsTheRecordingPassThenTheParsingPass) {
  Collect();
  EXPECT_EQ(services_.runs, (Texts{
                                "qcmdrun getconfig 1 al",  "qcmdrun getconfig 1 al",    "qcmdrun getstatus 1 device",
                                "qcmdrun getbst 1 device", "qcmdrun getevent 1 device", "qcmdrun getevent 1 ddd",
                                "qcmdrun getevent 1 soft", "qcmdrun getevent 1 hard",   "qcmdrun getsubstat 1 device",
                                "qcmdrun getconfig 2 al",  "qcmdrun getconfig 1 al",    "qcmdrun getstatus 1 device",
                                "qcmdrun getbst 1 device", "qcmdrun getevent 1 device", "qcmdrun getevent 1 ddd",
                                "qcmdrun getevent 1 soft", "qcmdrun getevent 1 hard",   "qcmdrun getsubstat 1 device",
                                "qcmdrun getconfig 2 al",
                            }));
}

TEST_F(QcmdrunDataTest, LogsEveryStepAtTheRoutineLevel) {
  Collect();
  const std::string prefix = " QCMDRUN is using Spawnprocess. Controller# :";
  const Texts expected = {
      prefix + "1 opt1: getconfig opt2: al",
      prefix + "1 opt1: getconfig opt2: al",
      prefix + "1 opt1: getstatus opt2: device",
      prefix + "1 opt1: getbst opt2: device",
      prefix + "1 opt1: getevent opt2: device",
      prefix + "1 opt1: getevent opt2: ddd",
      prefix + "1 opt1: getevent opt2: soft",
      prefix + "1 opt1: getevent opt2: hard",
      prefix + "1 opt1: getsubstat opt2: device",
      prefix + "2 opt1: getconfig opt2: al",
      "Looking for QCMRUN controller",
      prefix + "1 opt1: getconfig opt2: al",
      "configData is not empty!\n",
      "Found QCMRUN Controller information",
      "Parsing for QCMRUN logical drive information\n",
      "Found QCMDRUN Logical Drive Information\n",
      "Parse For  QCMDRUN Stripe Order\n",
      "Found QCMDRUN Stripe Order Data\n",
      "Parse For QCMDRUN Physical Devices\n",
      prefix + "1 opt1: getstatus opt2: device",
      prefix + "1 opt1: getbst opt2: device",
      prefix + "1 opt1: getevent opt2: device",
      prefix + "1 opt1: getevent opt2: ddd",
      prefix + "1 opt1: getevent opt2: soft",
      prefix + "1 opt1: getevent opt2: hard",
      prefix + "1 opt1: getsubstat opt2: device",
      "Looking for QCMRUN controller",
      prefix + "2 opt1: getconfig opt2: al",
  };
  EXPECT_EQ(services_.LogTexts(), expected);
  for (const LogEntry& entry : services_.log) EXPECT_EQ(entry.level, 3) << entry.text;
}

TEST_F(QcmdrunDataTest, RecordsEveryAnswerOfTheFirstPassOnce) {
  Collect();
  EXPECT_EQ(RawCommands(), (Texts{
                               "zenx//qcmdrun.exe getconfig 1 al",
                               "zenx//qcmdrun.exe getstatus 1 device",
                               "zenx//qcmdrun.exe getbst 1 device",
                               "zenx//qcmdrun.exe getevent 1 device",
                               "zenx//qcmdrun.exe getevent 1 ddd",
                               "zenx//qcmdrun.exe getevent 1 soft",
                               "zenx//qcmdrun.exe getevent 1 hard",
                               "zenx//qcmdrun.exe getsubstat 1 device",
                           }));
  EXPECT_EQ(data_.GetRawData()[2]->RawResults,
            (Texts{"Get bad stripe information", "Logical drive 1 - 2", "Command completed."}));
}

TEST_F(QcmdrunDataTest, AttachesEverythingToTheController) {
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  EXPECT_EQ(controller->ControllerType, "Zentraxis C4");
  EXPECT_EQ(controller->Current_MostRecentOperation, " None\r\n");
  ASSERT_EQ(controller->LogicalDevices.size(), 1u);
  EXPECT_EQ(controller->LogicalDevices[0]->LogicalDriveNum, "1");
  ASSERT_EQ(controller->StripeOrders.size(), 1u);
  EXPECT_EQ(controller->StripeOrders[0]->CollectionID, "Zentraxis1ArrayA");
  ASSERT_EQ(controller->PhysicalDevices.size(), 1u);
  EXPECT_EQ(controller->PhysicalDevices[0]->Channel, "1");
  ASSERT_EQ(controller->BadStripes.size(), 1u);
  EXPECT_EQ(controller->BadStripes[0]->NumBadStripes, "2");
  ASSERT_EQ(controller->DeviceEvents.size(), 1u);
  EXPECT_EQ(controller->DeviceEvents[0]->Channel, "1");
  ASSERT_EQ(controller->DddEvents.size(), 1u);
  EXPECT_EQ(controller->DddEvents[0]->RecordID, "0001");
  ASSERT_TRUE(controller->SoftEvents);
  EXPECT_EQ(controller->SoftEvents->Codes, (std::vector<std::uint32_t>{1}));
  ASSERT_TRUE(controller->HardEvents);
  EXPECT_EQ(controller->HardEvents->Codes, (std::vector<std::uint32_t>{2}));
  ASSERT_EQ(controller->SubStats.size(), 1u);
  EXPECT_EQ(controller->SubStats[0]->InstanceID, "Zentraxis:1C1S0");
}

TEST_F(QcmdrunDataTest, RunsTwiceAndFindsNothingWhereTheFirstNumberReportsNoController) {
  SetNoneFrom(1);
  Collect();
  EXPECT_EQ(services_.runs, (Texts{"qcmdrun getconfig 1 al", "qcmdrun getconfig 1 al"}));
  EXPECT_EQ(RawCommands(), Texts{});
  EXPECT_EQ(ControllerNumbers(), Texts{});
}

TEST_F(QcmdrunDataTest, SkipsANumberWhoseCommandIsAbortedAndTriesHigherOnes) {
  SetController(2);
  services_.answers[Run("getconfig", 1, "al")] = kAborted;
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"2"}));
  EXPECT_EQ(RawCommands().size(), 8u);
  EXPECT_EQ(RawCommands().front(), "zenx//qcmdrun.exe getconfig 2 al");
  EXPECT_FALSE(Ran("qcmdrun getstatus 1 device"));
}

TEST_F(QcmdrunDataTest, NumbersControllers1And3As5And7Behind4ButTheirRawRecords1And3) {
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

TEST_F(QcmdrunDataTest, AsksForEightNumbersAtMost) {
  for (int number = 1; number <= 9; ++number) SetController(number);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"1", "2", "3", "4", "5", "6", "7", "8"}));
  EXPECT_EQ(services_.runs.size(), 8u + 8 * 8 + 8 * 8);
  EXPECT_FALSE(Ran("qcmdrun getconfig 9 al"));
}

TEST_F(QcmdrunDataTest, RecordsTheTextForAFailedRunAndGoesOnWithoutAController) {
  Fail("getconfig", "al");
  Collect();
  EXPECT_EQ(ControllerNumbers(), Texts{});
  EXPECT_EQ(RawCommands().size(), 8u);
  EXPECT_EQ(data_.GetRawData()[0]->RawResults, Texts{});
  EXPECT_EQ(Logged("Qcmdrun aborted: zenx//qcmdrun.exe is not here"), 3);
  EXPECT_EQ(Logged("configData is not empty!\n"), 1);
  EXPECT_EQ(Logged("Found QCMRUN Controller information"), 0);
}

TEST_F(QcmdrunDataTest, FindsNothingInTheTextForAFailedRunOfALaterCommand) {
  for (const auto& [command, option] : kQcmdrunCommands) {
    if (command != "getconfig") Fail(command, option);
  }
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  EXPECT_EQ(controller->Current_MostRecentOperation, "");
  EXPECT_TRUE(controller->BadStripes.empty());
  EXPECT_TRUE(controller->DeviceEvents.empty());
  EXPECT_TRUE(controller->DddEvents.empty());
  EXPECT_FALSE(controller->SoftEvents);
  EXPECT_FALSE(controller->HardEvents);
  EXPECT_TRUE(controller->SubStats.empty());
  EXPECT_EQ(Logged("Qcmdrun aborted: zenx//qcmdrun.exe is not here"), 14);
}

TEST_F(QcmdrunDataTest, RecordsNoEmptyAnswer) {
  Answer("getevent", "ddd", "");
  Collect();
  EXPECT_EQ(RawCommands().size(), 7u);
  EXPECT_EQ(RawCommands()[4], "zenx//qcmdrun.exe getevent 1 soft");
}

TEST_F(QcmdrunDataTest, SkipsANumberWithAnEmptyConfiguration) {
  Answer("getconfig", "al", "");
  SetController(2);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"2"}));
  EXPECT_EQ(Logged("configData is not empty!\n"), 1);
  EXPECT_EQ(RawCommands()[0], "zenx//qcmdrun.exe getstatus 1 device");
}

TEST_F(QcmdrunDataTest, KeepsAControllerAllOfWhoseOtherAnswersAreEmpty) {
  for (const auto& [command, option] : kQcmdrunCommands) {
    if (command != "getconfig") Answer(command, option, "");
  }
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  EXPECT_EQ(controller->PhysicalDevices.size(), 1u);
  EXPECT_EQ(controller->Current_MostRecentOperation, "");
  EXPECT_TRUE(controller->BadStripes.empty());
  EXPECT_TRUE(controller->DeviceEvents.empty());
  EXPECT_TRUE(controller->DddEvents.empty());
  EXPECT_FALSE(controller->SoftEvents);
  EXPECT_FALSE(controller->HardEvents);
  EXPECT_TRUE(controller->SubStats.empty());
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

// The line feed is missing, so that the line is none for the scanner, while the text has the words.
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

TEST_F(QcmdrunDataTest, LeavesBadStripesAndGoesOnWhenOneIsRejected) {
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

TEST_F(QcmdrunDataTest, KeepsTwoDefunctDriveRowsAndGoesOnWhenTheThirdHasABadTimeStamp) {
  Answer("getevent", "ddd",
         "+---+\n" + DddRow("01", "4") + DddRow("02", "5") + DddRow("13", "6") + "Command completed successfully.\n");
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  ASSERT_EQ(controller->DddEvents.size(), 2u);
  EXPECT_EQ(controller->DddEvents[0]->RecordID, "0001");
  EXPECT_EQ(controller->DddEvents[1]->RecordID, "0002");
  EXPECT_EQ(Logged("Time Stamp is junk: Quit DDD data collection"), 1);
  EXPECT_TRUE(controller->SoftEvents);
}

TEST_F(QcmdrunDataTest, LetsTheFailureOfACutOffAnswerPass) {
  Answer("getsubstat", "device", "A:1 C:1 I:0 PARAMS:0 \n");
  EXPECT_THROW(Collect(), std::out_of_range);
  EXPECT_EQ(ControllerNumbers(), (Texts{"1"})) << "what was complete before stays";
}

TEST_F(QcmdrunDataTest, LeavesTheSlotDeviceEmptyWhenNoPresentDeviceHasTheSlotNumber) {
  Answer("getconfig", "al", kControllerSection + "Controller slot information : 1987654321\n" + kDeviceSection);
  Collect();
  const auto controller = OnlyController();
  ASSERT_TRUE(controller);
  EXPECT_EQ(controller->ControllerSlotInfo, "1987654321");
  EXPECT_EQ(controller->SlotDeviceId, "");
}

// One answer that the utility gives on the sample machine for controller 1, cut off at any place. The controller has
// no more of a configuration than it takes to be asked for everything, and all other answers are empty.
class QcmdrunDataCutOff : public testing::Test {
 protected:
  QcmdrunDataCutOff() {
    AnswerAsSampleQcmdrun(services_);
    samples_ = services_.answers;
    for (const auto& [command, option] : kQcmdrunCommands) services_.answers[QcmdrunRun(command, 1, option)] = "";
    services_.answers[QcmdrunRun("getconfig", 2, "al")] = kNoneFound;
    services_.answers[kGetConfig] = kShortest;
  }

  // Collects with this answer to the run. True: the whole answer could be read. Any failure but the stated one ends
  // the test.
  bool Collects(const std::string& run, const std::string& answer) {
    const std::string before = std::exchange(services_.answers[run], answer);
    services_.log.clear();
    services_.runs.clear();
    bool isRead = true;
    QcmdrunData data(TRootObject::GetCoreLogger());
    try {
      data.Collect(0);
    } catch (const std::out_of_range&) {
      isRead = false;
    }
    services_.answers[run] = before;
    return isRead;
  }

  void CutBehindEveryLine(const std::string& run, const std::string& text) {
    for (std::size_t lineFeed = text.find('\n'); lineFeed != text.npos; lineFeed = text.find('\n', lineFeed + 1)) {
      Collects(run, text.substr(0, lineFeed + 1));
    }
    EXPECT_TRUE(Collects(run, text)) << run;
  }

  const std::string kGetConfig = QcmdrunRun("getconfig", 1, "al");
  const std::string kShortest =
      CrLf("Controller information\nPhysical device information\n-----\nCommand completed successfully.\n");

  ScriptedServices services_;
  std::map<std::string, std::string> samples_;
};

TEST_F(QcmdrunDataCutOff, IsReadOrFailsInTheStatedWayAtEveryLine) {
  for (const auto& [command, option] : kQcmdrunCommands) {
    const std::string run = QcmdrunRun(command, 1, option);
    CutBehindEveryLine(run, samples_[run]);
  }
}

TEST_F(QcmdrunDataCutOff, IsReadOrFailsInTheStatedWayWithLineFeedsAlone) {
  for (const auto& [command, option] : kQcmdrunCommands) {
    const std::string run = QcmdrunRun(command, 1, option);
    std::string text = samples_[run];
    std::erase(text, '\r');
    CutBehindEveryLine(run, text);
  }
}

TEST_F(QcmdrunDataCutOff, IsReadOrFailsInTheStatedWayAsTheAnswerToEveryOtherCommand) {
  for (const auto& [command, option] : kQcmdrunCommands) {
    for (const auto& sample : samples_) Collects(QcmdrunRun(command, 1, option), sample.second);
  }
}

TEST_F(QcmdrunDataCutOff, FailsWhereverItsListsOfDrivesOrDevicesAreCut) {
  const std::string text = samples_[kGetConfig];
  struct Case {
    std::string name;
    std::size_t length;
    bool isRead;
  };
  const std::vector<Case> cases = {
      {"before the controller",     text.find("Controller information"),         true },
      {"inside the controller",     text.find("Hot-spare"),                      true },
      {"inside a logical drive",    text.find("Access blocked"),                 false},
      {"behind the logical drives", text.find("Array information"),              true },
      {"inside the stripe orders",  text.find("   Array B"),                     false},
      {"before the devices",        text.find("Physical device information"),    true },
      {"inside a device",           text.find("PFA (Yes/No)"),                   false},
      {"before the last line",      text.find("Command completed successfully"), false},
  };
  for (const Case& cutCase : cases) {
    EXPECT_EQ(Collects(kGetConfig, text.substr(0, cutCase.length)), cutCase.isRead) << cutCase.name;
  }
}

}  // namespace
