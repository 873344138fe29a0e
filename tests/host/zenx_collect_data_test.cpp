#include "collect/zenx_collect_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "collect/ascii_text.h"
#include "collect/collected_data.h"
#include "plugin/host_interface/services.h"
#include "tests/support/scripted_services.h"
#include "tests/support/tool_text.h"

namespace {

using NKVRHXA20::TRootObject;

using Texts = std::vector<std::string>;

const std::string kQcmdrunConfig = CrLf(R"(Controller information
Physical device information
-----
Command completed successfully.
)");

const std::string kConfig = CrLf(R"(Controller information
Controller Status : Optimal
Command completed successfully.
)");

// A machine without a controller: every utility is there and reports none. Each test gives it some.
class ZenxCollectDataTest : public testing::Test {
 protected:
  ZenxCollectDataTest() {
    SetQcmdrunControllers(0);
    SetHrconfControllers(0);
    SetArcconfControllers(0);
  }

  // Numbers up to the count answer, higher ones report that there is no controller.
  void SetQcmdrunControllers(int count) {
    SetConfigs("qcmdrun", count, kQcmdrunConfig, "Found 0 KVR Zentraxis controller(s)\r\n");
    const Texts others = {"getstatus N device", "getbst N device", "getevent N device",  "getevent N ddd",
                          "getevent N soft",    "getevent N hard", "getsubstat N device"};
    SetAnswers("qcmdrun", others, count, "");
  }

  void SetHrconfControllers(int count) {
    SetConfigs("hrconf_64", count, kConfig, "Controllers found: 0\r\n");
    SetAnswers("hrconf_64", {"getstatus N", "getversion N"}, count, "some answer\r\n");
  }

  void SetArcconfControllers(int count) {
    SetConfigs("arcconf", count, kConfig, "Controllers found: 0\r\n");
    SetAnswers("arcconf", {"getlogs N device", "getlogs N dead", "getlogs N event", "getlogs N uart"}, count, "");
  }

  ZenxCollectData& Collect(bool skipHrconf = false) {
    data_.Collect(skipHrconf);
    return data_;
  }

  Texts ControllerNumbers() const {
    Texts numbers;
    for (const auto& controller : data_.GetControllers()) numbers.push_back(controller->ControllerNum);
    return numbers;
  }

  // The command and the tool's name of each raw record: "arcconf getconfig 1 al".
  Texts RawCommands() const {
    Texts commands;
    for (const auto& raw : data_.GetRawData()) {
      std::string command = std::string(raw->Command).substr(std::string("zenx//").size());
      commands.push_back(command.erase(command.find(".exe"), std::string(".exe").size()));
    }
    return commands;
  }

  // The tools in the order in which they were first run.
  Texts Tools() const {
    Texts tools;
    for (const std::string& run : services_.runs) {
      const std::string tool = run.substr(0, run.find(' '));
      if (std::find(tools.begin(), tools.end(), tool) == tools.end()) tools.push_back(tool);
    }
    return tools;
  }

  ScriptedServices services_;
  ZenxCollectData data_{TRootObject::GetCoreLogger()};

 private:
  void SetConfigs(const std::string& tool, int count, const std::string& config, const std::string& none) {
    for (int number = 1; number <= 8; ++number) {
      services_.answers[tool + " getconfig " + std::to_string(number) + " al"] = number <= count ? config : none;
    }
  }

  void SetAnswers(const std::string& tool, const Texts& commands, int count, const std::string& answer) {
    for (const std::string& command : commands) {
      for (int number = 1; number <= count; ++number) {
        std::string run = command;
        services_.answers[tool + " " + run.replace(run.find('N'), 1, std::to_string(number))] = answer;
      }
    }
  }
};

TEST_F(ZenxCollectDataTest, RunsTheToolsOneAfterTheOther) {
  Collect();
  EXPECT_EQ(Tools(), (Texts{"qcmdrun", "hrconf_64", "arcconf"}));
  EXPECT_EQ(ControllerNumbers(), Texts{});
  EXPECT_EQ(RawCommands(), Texts{});
}

TEST_F(ZenxCollectDataTest, NumbersControllersOnFromToolToTool) {
  SetQcmdrunControllers(2);
  SetHrconfControllers(1);
  SetArcconfControllers(2);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"1", "2", "3", "4", "5"}));
}

TEST_F(ZenxCollectDataTest, StartsHrconfAt0AndArcconfAtItsCountWithoutLegacyControllers) {
  SetHrconfControllers(2);
  SetArcconfControllers(1);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"1", "2", "3"}));
}

// Numbers continue the count of controllers, not the last number: a gap gives a number twice.
TEST_F(ZenxCollectDataTest, ContinuesTheCountOfControllersAlsoWhereAToolLeftAGap) {
  SetQcmdrunControllers(3);
  services_.answers["qcmdrun getconfig 2 al"] = "Command aborted\r\n";
  SetArcconfControllers(1);
  Collect();
  EXPECT_EQ(ControllerNumbers(), (Texts{"1", "3", "3"}));
}

TEST_F(ZenxCollectDataTest, RunsNoHrconfCommandWhenItIsSkippedAndStartsArcconfAtTheLegacyCount) {
  SetQcmdrunControllers(2);
  SetHrconfControllers(4);
  SetArcconfControllers(1);
  Collect(true);
  EXPECT_EQ(Tools(), (Texts{"qcmdrun", "arcconf"}));
  EXPECT_EQ(ControllerNumbers(), (Texts{"1", "2", "3"}));
}

TEST_F(ZenxCollectDataTest, KeepsTheRawRecordsOfAToolThatFoundNoController) {
  SetArcconfControllers(1);
  services_.answers["arcconf getconfig 1 al"] = "nothing that a controller is made of\r\n";
  Collect();
  EXPECT_EQ(ControllerNumbers(), Texts{});
  EXPECT_EQ(RawCommands(), (Texts{"arcconf getconfig 1 al"}));
}

TEST_F(ZenxCollectDataTest, KeepsRawRecordsInTheOrderOfTheTools) {
  SetQcmdrunControllers(1);
  SetHrconfControllers(1);
  SetArcconfControllers(1);
  services_.answers["arcconf getlogs 1 dead"] = "dead\r\n";
  services_.answers["qcmdrun getbst 1 device"] = "none\r\n";
  Collect(true);
  EXPECT_EQ(RawCommands(), (Texts{"qcmdrun getconfig 1 al", "qcmdrun getbst 1 device", "arcconf getconfig 1 al",
                                  "arcconf getlogs 1 dead"}));
}

TEST_F(ZenxCollectDataTest, ListsAControllerTwiceThatTwoToolsReport) {
  SetHrconfControllers(1);
  SetArcconfControllers(1);
  Collect();
  const ControllerList controllers = data_.GetControllers();
  ASSERT_EQ(controllers.size(), 2u);
  EXPECT_TRUE(Contains(controllers[0]->ControllerStatus, "Optimal"));
  EXPECT_TRUE(Contains(controllers[1]->ControllerStatus, "Optimal"));
}

TEST_F(ZenxCollectDataTest, GivesCopiesOfItsListsThatHoldTheSameRecords) {
  SetArcconfControllers(1);
  Collect();
  ControllerList copy = data_.GetControllers();
  EXPECT_EQ(copy[0], data_.GetControllers()[0]);
  copy.clear();
  EXPECT_EQ(data_.GetControllers().size(), 1u);
}

TEST_F(ZenxCollectDataTest, LetsAFailurePassAndRunsNoFurtherTool) {
  SetQcmdrunControllers(1);
  services_.answers["qcmdrun getsubstat 1 device"] = "A:1 C:1\r\n";
  EXPECT_THROW(Collect(), std::out_of_range);
  EXPECT_EQ(Tools(), (Texts{"qcmdrun"}));
  EXPECT_EQ(ControllerNumbers(), Texts{});
  EXPECT_EQ(RawCommands(), Texts{});
}

TEST_F(ZenxCollectDataTest, StartsWithTheRecordsThatItIsGiven) {
  const auto controller = std::make_shared<ZenxController>(TRootObject::GetCoreLogger());
  const ZenxCollectData data(TRootObject::GetCoreLogger(), {controller});
  EXPECT_EQ(data.GetControllers(), (ControllerList{controller}));
  EXPECT_EQ(services_.runs, Texts{});
}

}  // namespace
