#include "collect/collection_driver.h"

#include <gtest/gtest.h>

#include <iterator>
#include <stdexcept>

#include "plugin/host_interface/services.h"
#include "tests/support/sample_text.h"
#include "tests/support/scripted_services.h"
#include "tools/arcconf/arcconf_adapter.h"
#include "tools/hrconf/hrconf_adapter.h"
#include "tools/qcmdrun/qcmdrun_adapter.h"

namespace {

using NKVRHXA20::TRootObject;
using Lines = std::vector<std::string>;

// The controllers, the records, the log and the runs.
struct Outcome {
  Lines controllers;
  Lines commands;
  Lines runs;
  std::vector<LogEntry> log;

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <class Collector, class Start>
Outcome Collect(const std::map<std::string, std::string>& answers, Start start) {
  ScriptedServices services;
  services.answers = answers;
  Collector collector(TRootObject::GetCoreLogger());
  collector.Collect(start);
  Outcome outcome;
  for (const auto& controller : collector.GetControllers()) outcome.controllers.push_back(controller->ControllerNum);
  for (const auto& raw : collector.GetRawData()) outcome.commands.push_back(raw->Command);
  outcome.runs = services.runs;
  outcome.log = services.log;
  return outcome;
}

template <class List>
void Append(List& to, const List& from) {
  to.insert(to.end(), from.begin(), from.end());
}

void Append(Outcome& to, const Outcome& from) {
  Append(to.controllers, from.controllers);
  Append(to.commands, from.commands);
  Append(to.runs, from.runs);
  Append(to.log, from.log);
}

// A machine that has all, some or none of the three utilities, with the controllers of the sample machine.
struct Machine {
  const char* name;
  std::vector<std::string> tools;
  Lines controllers;
  std::size_t recorded;  // commands
};

std::map<std::string, std::string> AnswersOf(const Machine& machine) {
  std::map<std::string, std::string> answers;
  for (const std::string& tool : machine.tools) answers.merge(AllAnswersOf(tool));
  return answers;
}

// A missing qcmdrun is recorded as 64 failures, a missing hrconf as 24, a missing arcconf not at all. With their
// controllers they record 16, 3 and 10.
const Machine kMachines[] = {
    {"none",                {},                                  {},                        64 + 24     },
    {"qcmdrun",             {"qcmdrun"},                         {"1", "2"},                16 + 24     },
    {"hrconf",              {"hrconf_64"},                       {"1"},                     64 + 3      },
    {"arcconf",             {"arcconf"},                         {"1", "2"},                64 + 24 + 10},
    {"qcmdrun and hrconf",  {"qcmdrun", "hrconf_64"},            {"1", "2", "3"},           16 + 3      },
    {"qcmdrun and arcconf", {"qcmdrun", "arcconf"},              {"1", "2", "3", "4"},      16 + 24 + 10},
    {"hrconf and arcconf",  {"hrconf_64", "arcconf"},            {"1", "2", "3"},           64 + 3 + 10 },
    {"all",                 {"qcmdrun", "hrconf_64", "arcconf"}, {"1", "2", "3", "4", "5"}, 16 + 3 + 10 },
};

TEST(ZenxCollectData, NumberControllersOnFromToolToTool) {
  for (const Machine& machine : kMachines) {
    const Outcome outcome = Collect<ZenxCollectData>(AnswersOf(machine), false);
    EXPECT_EQ(outcome.controllers, machine.controllers) << machine.name;
    EXPECT_EQ(outcome.commands.size(), machine.recorded) << machine.name;
  }
}

// Numbers continue from the number of controllers so far, not from the highest number.
TEST(ZenxCollectData, UseANumberTwiceIfALegacyControllerIsMissingBeforeAnother) {
  std::map<std::string, std::string> answers;
  for (auto& [command, answer] : AnswersOf(std::end(kMachines)[-1])) {
    std::string swapped = command;
    const std::size_t number = command.starts_with("qcmdrun ") ? command.find_first_of("23") : command.npos;
    if (number != command.npos) swapped[number] = command[number] == '2' ? '3' : '2';
    answers[swapped] = answer;
  }
  EXPECT_EQ(Collect<ZenxCollectData>(answers, false).controllers, (Lines{"1", "3", "3", "4", "5"}));
}

TEST(ZenxCollectData, RunRecordAndLogTheThreeToolsOneAfterTheOther) {
  for (const Machine& machine : kMachines) {
    const auto answers = AnswersOf(machine);
    Outcome expected = Collect<QcmdrunData>(answers, 0u);
    Append(expected, Collect<HrconfData>(answers, static_cast<unsigned>(expected.controllers.size())));
    Append(expected, Collect<ArcconfData>(answers, static_cast<unsigned>(expected.controllers.size())));
    const Outcome outcome = Collect<ZenxCollectData>(answers, false);
    EXPECT_TRUE(outcome == expected) << machine.name;
    EXPECT_EQ(outcome.log, expected.log) << machine.name;
    EXPECT_FALSE(outcome.log.empty()) << machine.name;
  }
}

TEST(ZenxCollectData, RunNoSkippedHrconfCommandAndStartArcconfAtTheLegacyCount) {
  const Machine& all = std::end(kMachines)[-1];
  const Outcome outcome = Collect<ZenxCollectData>(AnswersOf(all), true);
  EXPECT_EQ(outcome.controllers, (Lines{"1", "2", "3", "4"}));
  EXPECT_EQ(outcome.commands.size(), 16u + 10u);
  for (const std::string& run : outcome.runs) EXPECT_FALSE(run.starts_with("hrconf_64")) << run;
}

TEST(ZenxCollectData, LogOneLineForEachFailureOfAMissingTool) {
  const Outcome outcome = Collect<ZenxCollectData>({}, false);
  std::size_t qcmdrun = 0;
  std::size_t hrconf = 0;
  std::size_t arcconf = 0;
  for (const LogEntry& entry : outcome.log) {
    qcmdrun += entry == LogEntry{3, "Qcmdrun aborted: zenx//qcmdrun.exe is not here"};
    hrconf += entry == LogEntry{3, "hrconf aborted: zenx//hrconf_64.exe is not here"};
    arcconf += entry == LogEntry{3, "ArcConf Aborted: zenx//arcconf.exe is not here"};
  }
  EXPECT_EQ(qcmdrun, 8u + 64u + 8u);
  EXPECT_EQ(hrconf, 8u + 24u + 8u);
  EXPECT_EQ(arcconf, 8u + 40u + 8u);
  EXPECT_EQ(outcome.runs.size(), qcmdrun + hrconf + arcconf);
}

TEST(ZenxCollectData, KeepsTheRawRecordsOfAToolThatFoundNoController) {
  auto answers = AllAnswersOf("hrconf_64");
  answers["hrconf_64 getconfig 1 al"] = "nothing that a controller is made of\r\n";
  const Outcome outcome = Collect<ZenxCollectData>(answers, false);
  EXPECT_EQ(outcome.controllers, Lines{});
  EXPECT_EQ(outcome.commands.size(), 64u + 3u);
}

TEST(ZenxCollectData, LetsAFailurePassAndRunsNoFurtherTool) {
  ScriptedServices services;
  services.answers = AllAnswers();
  services.answers["qcmdrun getsubstat 1 device"] = "A:1 C:1\r\n";
  ZenxCollectData data(TRootObject::GetCoreLogger());
  EXPECT_THROW(data.Collect(false), std::out_of_range);
  for (const std::string& run : services.runs) EXPECT_TRUE(run.starts_with("qcmdrun ")) << run;
  EXPECT_TRUE(data.GetControllers().empty());
  EXPECT_TRUE(data.GetRawData().empty());
}

TEST(ZenxCollectData, StartsWithTheGivenRecordsAndReturnsCopiesOfItsLists) {
  const ScriptedServices services;
  const auto controller = std::make_shared<ZenxController>(TRootObject::GetCoreLogger());
  const ZenxCollectData data(TRootObject::GetCoreLogger(), {controller});
  ControllerList copy = data.GetControllers();
  EXPECT_EQ(copy, (ControllerList{controller}));
  copy.clear();
  EXPECT_EQ(data.GetControllers(), (ControllerList{controller}));
  EXPECT_EQ(services.runs, Lines{});
}

}  // namespace
