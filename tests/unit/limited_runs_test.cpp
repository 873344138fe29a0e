#include "host/hxahost/collection/limited_runs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr int kAllowed = 300;

std::string CommandOf(const std::string& path, const std::vector<std::string>& arguments) {
  std::string command = ToolName(path);
  for (const std::string& argument : arguments) command += " " + argument;
  return command;
}

// Utilities that answer each command with a report, or hang if the test requires it.
class LimitedRunsTest : public testing::Test {
 protected:
  LimitedRuns Make(const RunLimits& limits) {
    const auto spawn = [this](const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
      const std::string command = CommandOf(path, arguments);
      asked_.push_back(command);
      allowed_.push_back(limitSeconds);
      now_ += std::chrono::seconds(3);
      if (hanging_.contains(command)) throw TSpawnException(SpawnFailure::kTooLong, command + " hangs", 60.25);
      SpawnResult result("Controllers found: 1\nController information\n" + answer_ +
                         "Command completed successfully.\n");
      result.exitStatus = 0;
      result.seconds = 3;
      return result;
    };
    return {spawn, limits, runs_, [this] { return now_; }};
  }

  // The outcome of "arcconf getconfig 1 al": the message of the exception, "" for an answer.
  static std::string Ask(LimitedRuns& runs, const std::string& tool, const std::vector<std::string>& arguments) {
    try {
      EXPECT_THAT(runs.Run("zenx//" + tool + ".exe", arguments, kAllowed).output, HasSubstr("completed"));
      return "";
    } catch (const TSpawnException& failure) {
      EXPECT_NE(failure.Failure(), SpawnFailure::kNotStarted);
      return failure.what();
    }
  }

  std::vector<std::string> Outcomes() const {
    std::vector<std::string> outcomes;
    for (const ToolRun& run : runs_) outcomes.emplace_back(OutcomeWord(run.outcome));
    return outcomes;
  }

  ToolRunList runs_;
  std::set<std::string> hanging_;
  std::string answer_;
  std::vector<std::string> asked_;
  std::vector<int> allowed_;
  std::chrono::steady_clock::time_point now_;
};

TEST_F(LimitedRunsTest, UseTheLimitOfThePluginOrOfTheOptions) {
  LimitedRuns plain = Make({});
  Ask(plain, "arcconf", {"getconfig", "1", "al"});
  RunLimits limits;
  limits.runSeconds = 20;
  LimitedRuns limited = Make(limits);
  Ask(limited, "arcconf", {"getconfig", "1", "al"});
  EXPECT_THAT(allowed_, ElementsAre(kAllowed, 20));
}

TEST_F(LimitedRunsTest, RunNoMoreCommandsForAControllerAfterATimeout) {
  LimitedRuns runs = Make({});
  hanging_ = {"arcconf getconfig 1 al"};
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "1", "al"}), "arcconf getconfig 1 al hangs");
  EXPECT_EQ(Ask(runs, "arcconf", {"getlogs", "1", "device"}), "arcconf getconfig 1 al hangs") << "the same exception";
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "2", "al"}), "");
  EXPECT_EQ(Ask(runs, "qcmdrun", {"getconfig", "1", "al"}), "") << "another utility has a controller 1 of its own";
  EXPECT_THAT(asked_, ElementsAre("arcconf getconfig 1 al", "arcconf getconfig 2 al", "qcmdrun getconfig 1 al"));
  EXPECT_THAT(Outcomes(), ElementsAre("timed out", "not asked", "ok", "ok"));
  EXPECT_EQ(runs_[0].failure, "it did not answer within 60 s");
  EXPECT_EQ(runs_[1].failure, "getconfig 1 al was not answered");
}

TEST_F(LimitedRunsTest, RunAUtilityNoMoreAfterTwoTimeouts) {
  LimitedRuns runs = Make({});
  hanging_ = {"arcconf getconfig 1 al", "arcconf getlogs 2 uart"};
  Ask(runs, "arcconf", {"getconfig", "1", "al"});
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "2", "al"}), "");
  Ask(runs, "arcconf", {"getlogs", "2", "uart"});
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "3", "al"}), "arcconf getconfig 1 al hangs");
  EXPECT_EQ(Ask(runs, "hrconf_64", {"getconfig", "1", "al"}), "");
  EXPECT_THAT(Outcomes(), ElementsAre("timed out", "ok", "timed out", "not asked", "ok"));
}

TEST_F(LimitedRunsTest, GiveTheLastRunTheRemainingTimeAndStartNoneAfterIt) {
  RunLimits limits;
  limits.collectionSeconds = 5;
  LimitedRuns runs = Make(limits);
  Ask(runs, "arcconf", {"getconfig", "1", "al"});
  Ask(runs, "arcconf", {"getconfig", "2", "al"});
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "3", "al"}), "the 5 s of the collection are over");
  EXPECT_THAT(allowed_, ElementsAre(5, 2));
  EXPECT_THAT(Outcomes(), ElementsAre("ok", "ok", "not asked"));
}

TEST_F(LimitedRunsTest, RunNothingMoreAfterTooMuchOutput) {
  RunLimits limits;
  limits.outputBytes = kMebibyte;
  answer_.assign(kMebibyte / 2, 'x');
  LimitedRuns runs = Make(limits);
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "1", "al"}), "");
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "2", "al"}), "all runs together wrote more than 1 MiB");
  EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "3", "al"}), "the runs before it wrote 1 MiB, all that they may");
  EXPECT_THAT(Outcomes(), ElementsAre("ok", "cut off", "not asked"));
}

TEST_F(LimitedRunsTest, RunEachCommandOnceOnRequest) {
  RunLimits limits;
  limits.asksOnce = true;
  LimitedRuns runs = Make(limits);
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "1", "al"}), "");
    EXPECT_EQ(Ask(runs, "arcconf", {"getconfig", "2", "al"}), "");
    EXPECT_EQ(Ask(runs, "hrconf_64", {"getconfig", "1", "al"}), "");
  }
  EXPECT_EQ(asked_.size(), 3U);
  ASSERT_EQ(runs_.size(), 6U);
  EXPECT_FALSE(runs_[0].isReused);
  EXPECT_TRUE(runs_[3].isReused);
  EXPECT_EQ(runs_[3].seconds, 0);
  EXPECT_EQ(runs_[3].bytes, runs_[0].bytes);
  LimitedRuns again = Make({});
  for (int time = 0; time < 2; ++time) Ask(again, "arcconf", {"getconfig", "1", "al"});
  EXPECT_EQ(asked_.size(), 5U);
}

TEST_F(LimitedRunsTest, RepeatFailedRuns) {
  RunLimits limits;
  limits.asksOnce = true;
  answer_ = "Driver Update Required\n";
  LimitedRuns runs = Make(limits);
  for (int time = 0; time < 2; ++time) Ask(runs, "arcconf", {"getconfig", "1", "al"});
  EXPECT_THAT(Outcomes(), ElementsAre("failed", "failed"));
  EXPECT_EQ(asked_.size(), 2U);
}

}  // namespace
