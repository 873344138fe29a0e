#include "tools/arcconf/arcconf_data.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "plugin/host_interface/services.h"
#include "tests/support/controller_summary.h"
#include "tests/support/filled_fields.h"
#include "tests/support/scripted_services.h"
#include "tests/support/tool_text.h"

namespace {

using namespace NKVRHXA20;

const std::string kNoControllers = CrLf("Controllers found: 0\nCommand completed successfully.\n");
const std::string kInvalidNumber = CrLf("Controllers found: 2\nInvalid controller number.\n");

// One drive and one device, in the fewest lines that have both.
std::string Config(const std::string& serial) {
  return CrLf("Controller information\n   Controller Serial Number : " + serial +
              "\n"
              "Logical drive information\n----\n"
              "Logical drive number 1\n   Size : 100 MB\n\n"
              "Physical Device information\n----\n"
              "   Device #0\n   Device is a Hard drive\n   State : Online\n"
              "Command completed successfully.\n");
}

std::string GetConfig(unsigned number) { return "arcconf getconfig " + std::to_string(number) + " al"; }

// The five commands whose output is kept.
std::vector<std::string> RecordedRuns(unsigned number) {
  const std::string logs = "arcconf getlogs " + std::to_string(number);
  return {GetConfig(number), logs + " device", logs + " dead", logs + " event", logs + " uart"};
}

// A machine on which arcconf answers for no controller; a test gives it some.
class ArcconfDataTest : public testing::Test {
 protected:
  ArcconfDataTest() {
    for (unsigned number = 1; number <= 9; ++number) services_.answers[GetConfig(number)] = kNoControllers;
  }

  void AddController(unsigned number, const std::string& serial) {
    for (const std::string& run : RecordedRuns(number)) services_.answers[run] = "output of " + run + "\r\n";
    services_.answers[GetConfig(number)] = Config(serial);
  }

  void Collect(unsigned firstControllerNumber = 0) {
    ArcconfData arcconf(TRootObject::GetCoreLogger());
    arcconf.Collect(firstControllerNumber);
    controllers_ = arcconf.GetControllers();
    rawData_ = arcconf.GetRawData();
  }

  std::string CollectOne(const std::string& config) {
    services_.answers[GetConfig(1)] = config;
    for (const std::string& run : RecordedRuns(1)) services_.answers.emplace(run, "");
    Collect();
    return Summary(controllers_);
  }

  std::vector<std::string> Commands() const {
    std::vector<std::string> commands;
    for (const auto& raw : rawData_) commands.push_back(raw->Command);
    return commands;
  }

  ScriptedServices services_;
  ControllerList controllers_;
  RawDataList rawData_;
};

TEST_F(ArcconfDataTest, AsksTwiceAndFindsNothingOnAMachineWithoutControllers) {
  Collect();
  EXPECT_EQ(services_.runs, (std::vector<std::string>{GetConfig(1), GetConfig(1)}));
  EXPECT_TRUE(controllers_.empty());
  EXPECT_TRUE(rawData_.empty());
}

TEST_F(ArcconfDataTest, KeepsNoRecordOfAnEmptyOutput) {
  AddController(1, "A");
  services_.answers["arcconf getlogs 1 dead"] = "";
  services_.answers.erase("arcconf getlogs 1 uart");
  Collect();
  EXPECT_EQ(Commands(),
            (std::vector<std::string>{"zenx//arcconf.exe getconfig 1 al", "zenx//arcconf.exe getlogs 1 device",
                                      "zenx//arcconf.exe getlogs 1 event"}));
}

TEST_F(ArcconfDataTest, PassesOverAnInvalidNumberBetweenTwoControllers) {
  AddController(1, "A");
  services_.answers[GetConfig(2)] = kInvalidNumber;
  AddController(3, "C");
  Collect(4);
  EXPECT_EQ(Summary(controllers_),
            "5 A\n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n"
            "7 C\n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n");
  // The record names the utility's own numbers.
  ASSERT_EQ(rawData_.size(), 10u);
  EXPECT_EQ(rawData_[0]->Command, "zenx//arcconf.exe getconfig 1 al");
  EXPECT_EQ(rawData_[5]->Command, "zenx//arcconf.exe getconfig 3 al");
}

TEST_F(ArcconfDataTest, EndsAtTheFirstNumberThatSaysThereAreNoControllers) {
  AddController(1, "A");
  AddController(3, "C");
  Collect();
  EXPECT_EQ(controllers_.size(), 1u);
  EXPECT_EQ(rawData_.size(), 5u);
}

TEST_F(ArcconfDataTest, LooksAtEightControllersAtMost) {
  for (unsigned number = 1; number <= 9; ++number) AddController(number, "S" + std::to_string(number));
  Collect();
  ASSERT_EQ(controllers_.size(), 8u);
  EXPECT_EQ(controllers_.back()->SerialNum, "S8");
  EXPECT_EQ(controllers_.back()->ControllerNum, "8");
  EXPECT_EQ(rawData_.size(), 40u);
  EXPECT_EQ(std::count(services_.runs.begin(), services_.runs.end(), GetConfig(9)), 0);
}

TEST_F(ArcconfDataTest, EndsParsingAtADriverMismatchAndKeepsTheRecord) {
  AddController(1, "A");
  AddController(2, "B");
  services_.answers[GetConfig(2)] = Config("B") + "Driver Update Required\r\n";
  AddController(3, "C");
  Collect();
  EXPECT_EQ(Summary(controllers_), "1 A\n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n");
  EXPECT_EQ(rawData_.size(), 15u);
  EXPECT_EQ(services_.runs.back(), GetConfig(2));
  ASSERT_GE(services_.log.size(), 2u);
  EXPECT_EQ(services_.log[services_.log.size() - 2].level, 100);
  EXPECT_EQ(services_.log.back().level, 101);
  const auto isMismatch = [](const LogEntry& entry) { return entry.level >= 100; };
  EXPECT_EQ(std::count_if(services_.log.begin(), services_.log.end(), isMismatch), 2);
}

TEST_F(ArcconfDataTest, TakesNoControllersForStrongerThanADriverMismatchAndThatForStrongerThanAnInvalidNumber) {
  services_.answers[GetConfig(1)] = "Driver Update Required\r\n" + kNoControllers;
  Collect();
  EXPECT_EQ(services_.log.back().level, 3);
  services_.answers[GetConfig(1)] = "Driver Update Required\r\n" + kInvalidNumber;
  Collect();
  EXPECT_EQ(services_.log.back().level, 101);
}

TEST_F(ArcconfDataTest, TriesEveryNumberOfAMissingToolAndLogsEachFailure) {
  services_.answers.clear();
  Collect();
  EXPECT_EQ(services_.runs.size(), 8u * 6u + 8u);
  EXPECT_TRUE(controllers_.empty());
  EXPECT_TRUE(rawData_.empty());
  ASSERT_EQ(services_.log.size(), 2 * services_.runs.size());
  EXPECT_EQ(services_.log[1], (LogEntry{3, "ArcConf Aborted: zenx//arcconf.exe is not here"}));
  EXPECT_EQ(services_.log.back(), services_.log[1]);
}

TEST_F(ArcconfDataTest, GoesOnBehindAnAnswerThatIsNoReport) {
  AddController(2, "B");
  for (const std::string& answer :
       {std::string(), std::string("nonsense\r\n"), std::string("Controller information")}) {
    services_.answers[GetConfig(1)] = answer;
    Collect();
    EXPECT_EQ(Summary(controllers_), "2 B\n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n")
        << answer;
  }
}

TEST_F(ArcconfDataTest, LetsFailuresThatAreNotTheHostsPass) {
  HostServices services = CurrentServices();
  services.spawn = [](const std::string&, const std::vector<std::string>&, int) -> std::string {
    throw std::bad_alloc();
  };
  SetServices(services);
  EXPECT_THROW(Collect(), std::bad_alloc);
}

struct WalkCase {
  const char* name;
  const char* section;
  const char* found;
};

TEST_F(ArcconfDataTest, ReadsLogicalDrivesThatFollowEachOther) {
  const WalkCase cases[] = {
      {"a line between",              "LD number 1\n  Size : 1\n\nLD number 2\n  Size : 2\n\n",                    " drive 1| 1\n drive 2| 2\n"                         },
      {"no line between",             "LD number 1\n  Size : 1\nLD number 2\n  Size : 2\n\n",                      " drive 1| 1\n drive 2| 2\n"                         },
      {"two lines between",           "LD number 1\n  Size : 1\n\n\nLD number 2\n\n",                              " drive 1| 1\n"                                      },
      {"no number",                   "LD number\n  Size : 1\n\n",                                                 " drive | 1\n"                                       },
      {"a long number",               "LD number 12 (12)\n  Size : 1\n\n",                                         " drive 12 (12)| 1\n"                                },
      {"indented",                    "   LD number 1\n\n\n",                                                      " drive 1|\n"                                        },
      {"a stripe order",
       "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\n\nLD number 2\n\n",           " drive 1|\n drive 2|\n order 1LogicalDrv1 0,0\n"    },
      {"a stripe order of two lines",
       "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\n 0,1\n\nLD number 2\n\n",     " drive 1|\n drive 2|\n order 1LogicalDrv1 0,0 0,1\n"},
      {"of three lines",
       "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\n 0,1\n 0,2\nLD number 2\n\n", " drive 1|\n drive 2|\n order 1LogicalDrv1 0,0 0,1\n"},
      {"directly followed",
       "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\nLD number 2\n\n\n",           " drive 1|\n order 1LogicalDrv1 0,0\n"               },
      {"a stripe order of the drive",
       "LD number 1\n  Stripe order (Channel,Device) : 0,0\n  Defunct segments : No\n\nLD number 2\n\n",           " drive 1|\n drive 2|\n"                             },
      {"no drive",                    "No logical drives\n\n",                                                     ""                                                   },
  };
  for (const auto& [name, section, found] : cases) {
    std::string text = section;
    for (std::size_t at = text.find("LD"); at != text.npos; at = text.find("LD", at))
      text.replace(at, 2, "Logical drive");
    EXPECT_EQ(CollectOne(CrLf("Controller information\nLogical drive information\n----\n" + text)),
              std::string("1 \n") + found)
        << name;
  }
}

TEST_F(ArcconfDataTest, AttachesAStripeOrderWithoutAListEmpty) {
  CollectOne(
      CrLf("Controller information\nLogical drive information\n----\n"
           "Logical drive number 1\n  Defunct segments : No\n  Stripe order : 0,0\n\n\n"));
  ASSERT_EQ(controllers_.size(), 1u);
  ASSERT_EQ(controllers_[0]->StripeOrders.size(), 1u);
  EXPECT_EQ(FilledFields(*controllers_[0]->StripeOrders[0]), (std::set<std::string>{"ControllerNum=1"}));
}

TEST_F(ArcconfDataTest, WalksTheDevicesThatFollowEachOther) {
  const WalkCase cases[] = {
      {"one behind the other",           "D #0\n D is a Hard drive\n State : 0\nD #1\n D is a Hard drive\n State : 1\n",   "01"},
      {"passed over behind a gap",       "D #0\n D is a Hard drive\n State : 0\n\nD #1\n D is a Hard drive\n State : 1\n",
       "0"                                                                                                                     },
      {"the next is passed over too",    "D #0\n D is a Hard drive\n\nD #1\n D is a Hard drive\n State : 1\nD #2\n",       "0" },
      {"read behind a line of a device", "D #0\n D is a Hard drive\n\nD list\nD #1\n D is a Hard drive\n\n",               "01"},
      {"behind a gap of two lines",      "D #0\n D is a Hard drive\n\n\nD #1\n D is a Hard drive\n\n",                     "0" },
      {"a heading of a channel",         "Channel #0:\n speed\nD #0\n D is a Hard drive\nD #1\n D is a Hard drive\n",      "01"},
      {"a line before the first",        "\nD #0\n D is a Hard drive\n\n",                                                 ""  },
      {"a device line before it",        "D list\nD #0\n D is a Hard drive\n\n",                                           "0" },
      {"a channel in between",           "D #0\n D is a Hard drive\nChannel #1:\nD #1\n D is a Hard drive\n",              "0" },
      {"a type without labels",          "D #0\n D is a Tape drive\nD #1\n D is a Tape drive\n",                           "01"},
      {"no type",                        "D #0\nD #1\nD #2\n\n",                                                           "02"},
      {"no device",                      "",                                                                               ""  },
  };
  for (const auto& [name, section, found] : cases) {
    std::string text = section;
    for (std::size_t at = text.find("D "); at != text.npos; at = text.find("D ", at)) text.replace(at, 1, "Device");
    CollectOne(CrLf("Controller information\nPhysical Device information\n----\n" + text +
                    "Command completed successfully.\nDevice #9\n Device is a Hard drive\n"));
    std::string numbers;
    ASSERT_EQ(controllers_.size(), 1u) << name;
    for (const auto& each : controllers_[0]->PhysicalDevices) numbers += std::string(each->DeviceNumber).at(8);
    EXPECT_EQ(numbers, found) << name;
  }
}

TEST_F(ArcconfDataTest, TakesTwelveCharactersAsTheDevicesName) {
  CollectOne(
      CrLf("Controller information\nPhysical Device information\n----\n"
           "Device #0\n Device is a Hard drive\nDevice #123 at the front\n Device is a Hard drive\n"));
  ASSERT_EQ(controllers_.size(), 1u);
  ASSERT_EQ(controllers_[0]->PhysicalDevices.size(), 2u);
  EXPECT_EQ(controllers_[0]->PhysicalDevices[0]->DeviceNumber, "Device #0\r\n");
  EXPECT_EQ(controllers_[0]->PhysicalDevices[1]->DeviceNumber, "Device #123 ");
  EXPECT_EQ(controllers_[0]->PhysicalDevices[1]->DeviceIdSuffix, "Controller: Device #123 ");
}

TEST_F(ArcconfDataTest, EndsABlockQuietlyAtTheEndOfTheTextAndReadsTheBlocksBehindIt) {
  const std::string devices =
      "Physical Device information\n----\n   Device #0\n   Device is a Hard drive\n   State : Online\n";
  const std::string drives = "Logical drive information\n----\nLogical drive number 1\n   Size : 100 MB\n";
  EXPECT_EQ(CollectOne(CrLf("Controller information\n" + devices + drives)),
            "1 \n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\nLogical drive information\n")), "1 \n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\nPhysical Device information\n")), "1 \n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\n")), "1 \n");
  for (const LogEntry& entry : services_.log) EXPECT_EQ(entry.text.find(" ARCCONF  using"), 0u) << entry;
}

}  // namespace
