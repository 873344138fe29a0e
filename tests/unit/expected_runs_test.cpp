#include "host/hxahost/result/expected_runs.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;

// A run that requests a controller, with its outcome.
void Add(ToolRunList& runs, const std::string& tool, const std::string& number, Outcome outcome,
         const std::string& failure = "") {
  runs.push_back({
      "zenx//" + tool + ".exe", {"getconfig", number, "al"},
           0, 0, 0, outcome, failure
  });
}

TEST(ExpectedRuns, FollowFromTheAnswersSoFar) {
  ToolRunList runs;
  EXPECT_EQ(ExpectedRuns(runs), 48U) << "two passes over eight numbers of three tools";
  Add(runs, "qcmdrun", "1", Outcome::kOk);
  EXPECT_EQ(ExpectedRuns(runs), 48U + 8 + 7) << "the recorded and the parsed commands of a controller";
  Add(runs, "qcmdrun", "2", Outcome::kRefused, "Command aborted");
  EXPECT_EQ(ExpectedRuns(runs), 63U);
  Add(runs, "qcmdrun", "3", Outcome::kRefused, "Found 0 KVR Zentraxis controller(s)");
  EXPECT_EQ(ExpectedRuns(runs), 63U - 2 * 5) << "the five numbers above";
  Add(runs, "arcconf", "1", Outcome::kTimedOut);
  EXPECT_EQ(ExpectedRuns(runs), 3U + 16 + 5) << "three of the first tool, none of the second that was left out";
}

}  // namespace
