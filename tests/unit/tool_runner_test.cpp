#include "collect/tool_runner.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/exception.h"
#include "tests/support/recording_log.h"

namespace {

using namespace NKVRHXA20;

constexpr Tool kTool = {
    .path = "zenx//tool.exe",
    .logPrefix = " TOOL  is run. Controller# :",
    .abortText = "Tool aborted: ",
    .failedOutput = "nothing came - ",
};

struct Spawn {
  std::string path;
  std::vector<std::string> arguments;
  int limitSeconds = 0;
};

// Records the command, and answers as the test defines.
class ToolRunner : public testing::Test {
 protected:
  ToolRunner() {
    HostServices services = RealServices();
    services.spawn = [this](const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
      logBeforeSpawn_ = log_.entries;
      spawned_ = {path, arguments, limitSeconds};
      return answer_();
    };
    SetServices(services);
  }
  ~ToolRunner() override { SetServices(RealServices()); }
  ToolRunner(const ToolRunner&) = delete;
  ToolRunner& operator=(const ToolRunner&) = delete;

  std::string Run(const ToolCommand& command) { return RunTool(kTool, &log_, command, 4); }

  RecordingLog log_;
  Spawn spawned_;
  std::vector<LogEntry> logBeforeSpawn_;
  std::function<std::string()> answer_ = [] { return std::string("output\r\n"); };
};

TEST_F(ToolRunner, SpawnsTheToolWithCommandNumberAndOptionFor300Seconds) {
  EXPECT_EQ(Run({"getconfig", "al"}), "output\r\n");
  EXPECT_EQ(spawned_.path, "zenx//tool.exe");
  EXPECT_EQ(spawned_.arguments, (std::vector<std::string>{"getconfig", "4", "al"}));
  EXPECT_EQ(spawned_.limitSeconds, 300);
}

TEST_F(ToolRunner, PassesNoOptionForThePlaceholder) {
  Run({"getversion", kNoOption});
  EXPECT_EQ(spawned_.arguments, (std::vector<std::string>{"getversion", "4"}));
}

TEST_F(ToolRunner, LogsTheCommandBeforeItRuns) {
  Run({"getconfig", "al"});
  EXPECT_EQ(logBeforeSpawn_, (std::vector<LogEntry>{
                                 {3, " TOOL  is run. Controller# :4 opt1: getconfig opt2: al"}
  }));
  EXPECT_EQ(log_.entries, logBeforeSpawn_);
}

TEST_F(ToolRunner, LogsNoSecondOptionForACommandWithoutOne) {
  Run({"getversion", kNoOption});
  EXPECT_EQ(log_.entries, (std::vector<LogEntry>{
                              {3, " TOOL  is run. Controller# :4 opt1: getversion"}
  }));
}

TEST_F(ToolRunner, LogsARunThatFailedAndYieldsTheToolsTextForIt) {
  answer_ = []() -> std::string { throw THXAException("it is not there"); };
  EXPECT_EQ(Run({"getconfig", "al"}), "nothing came - ");
  EXPECT_EQ(log_.entries,
            (std::vector<LogEntry>{
                {3, " TOOL  is run. Controller# :4 opt1: getconfig opt2: al"},
                {3, "Tool aborted: it is not there"                         }
  }));
}

TEST_F(ToolRunner, LetsAnyOtherExceptionPass) {
  answer_ = []() -> std::string { throw std::runtime_error("other"); };
  EXPECT_THROW(Run({"getconfig", "al"}), std::runtime_error);
}

TEST_F(ToolRunner, ReturnsAnEmptyOutputAsItIs) {
  answer_ = [] { return std::string(); };
  EXPECT_EQ(Run({"getconfig", "al"}), "");
}

}  // namespace
