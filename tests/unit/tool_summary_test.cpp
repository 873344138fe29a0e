#include "host/hxahost/views/tables/tool_summary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using hxahost::Outcome;
using hxahost::QueryHeader;
using hxahost::QueryResult;
using hxahost::SummarizeRuns;
using hxahost::SummaryText;
using hxahost::ToolRun;
using hxahost::ToolRunList;
using hxahost::ToolSummary;
using testing::HasSubstr;
using testing::Not;

ToolRun MakeRun(const std::string& tool, const std::string& command, int number, Outcome outcome,
                const std::string& failure = "") {
  ToolRun run;
  run.path = "zenx//" + tool + ".exe";
  run.arguments = {command, std::to_string(number), "al"};
  run.seconds = 0.5;
  run.outcome = outcome;
  run.failure = failure;
  return run;
}

// The tool's line for these runs.
std::string TextOf(const ToolRunList& runs) { return SummaryText(SummarizeRuns(runs).back()); }

ToolRun Probe(int number, Outcome outcome) { return MakeRun("arcconf", "getconfig", number, outcome, "why"); }

std::string Written(QueryResult result) {
  QueryHeader header;
  header.directory = "/machine";
  std::ostringstream out;
  hxahost::WriteToolSummaries(out, header, result);
  return out.str();
}

TEST(ToolSummary, CountsRunsControllersAndRefusedNumbers) {
  const ToolRunList runs = {Probe(1, Outcome::kOk),      Probe(2, Outcome::kOk),      Probe(3, Outcome::kRefused),
                            Probe(4, Outcome::kRefused), Probe(5, Outcome::kRefused), Probe(8, Outcome::kRefused)};
  EXPECT_EQ(TextOf(runs), "arcconf: 6 runs, 2 controllers (1, 2), numbers 3-5, 8 refused, 3.0 s");
}

TEST(ToolSummary, DistinguishesTheWaysToSeeNoController) {
  struct Case {
    const char* name;
    Outcome outcome;
    const char* text;
  };
  const Case cases[] = {
      {"refused",     Outcome::kRefused,    "arcconf: 1 run, no controller found, number 1 refused, 0.5 s"},
      {"empty",       Outcome::kEmpty,      "arcconf: 1 run, no controller answered, 1 empty, 0.5 s"      },
      {"failed",      Outcome::kFailed,     "arcconf: 1 run, no controller answered, 1 failed, 0.5 s"     },
      {"cut off",     Outcome::kCutOff,     "arcconf: 1 run, no controller answered, 1 cut off, 0.5 s"    },
      {"timed out",   Outcome::kTimedOut,   "arcconf: 1 run, no controller answered, 1 timed out, 0.5 s"  },
      {"not started", Outcome::kNotStarted, "arcconf: 1 run, no controller answered, 1 not started, 0.5 s"},
  };
  for (const Case& each : cases) EXPECT_EQ(TextOf({Probe(1, each.outcome)}), each.text) << each.name;
}

TEST(ToolSummary, CountsNoControllerThatAnsweredOnlyOnce) {
  const ToolRunList runs = {Probe(1, Outcome::kOk), Probe(1, Outcome::kTimedOut)};
  EXPECT_EQ(TextOf(runs), "arcconf: 2 runs, no controller answered, 1 timed out, 1.0 s");
}

TEST(ToolSummary, ShowsTroubleWithALogBesideTheControllerThatAnswered) {
  const ToolRunList runs = {Probe(1, Outcome::kOk), MakeRun("arcconf", "getlogs", 1, Outcome::kCutOff, "why"),
                            MakeRun("arcconf", "getlogs", 1, Outcome::kTimedOut, "why")};
  EXPECT_EQ(TextOf(runs), "arcconf: 3 runs, 1 controller (1), 1 timed out, 1 cut off, 1.5 s");
}

TEST(ToolSummary, HasALineForAToolThatWasNotRun) {
  const std::vector<ToolSummary> summaries = SummarizeRuns({Probe(1, Outcome::kOk)});
  ASSERT_EQ(summaries.size(), 3U);
  EXPECT_EQ(SummaryText(summaries[0]), "qcmdrun: not run");
  EXPECT_EQ(SummaryText(summaries[1]), "hrconf_64: not run");
}

TEST(ToolSummary, PutsAnUnknownToolAfterTheOthers) {
  EXPECT_EQ(TextOf({MakeRun("new\x1b", "getconfig", 1, Outcome::kOk)}), "new\\x1b: 1 run, 1 controller (1), 0.5 s");
}

TEST(ToolSummary, ContinuesAfterAnInvalidNumber) {
  ToolRun run = Probe(1, Outcome::kOk);
  run.arguments = {"getconfig", "x1"};
  ToolRun bare = run;
  bare.arguments = {"getconfig"};
  EXPECT_EQ(TextOf({run, bare}), "arcconf: 2 runs, no controller found, 1.0 s");
}

TEST(ToolSummary, ReportsEachReasonOnceWithItsFirstCommand) {
  QueryResult result;
  result.runs = {MakeRun("qcmdrun", "getconfig", 1, Outcome::kNotStarted, "no such file"),
                 MakeRun("qcmdrun", "getconfig", 2, Outcome::kNotStarted, "no such file"),
                 MakeRun("arcconf", "getlogs", 1, Outcome::kCutOff, "its last line is \"x\"")};
  const std::string text = Written(result);
  EXPECT_THAT(text, HasSubstr("    not started (2 runs, the first getconfig 1 al): no such file\n"));
  EXPECT_THAT(text, HasSubstr("    cut off (getlogs 1 al): its last line is \"x\"\n"));
  EXPECT_THAT(text, HasSubstr("  Tools belong into the folder zenx of /machine.\n"));
}

TEST(ToolSummary, GivesALongReasonALineOfItsOwn) {
  QueryResult result;
  const std::string reason(80, 'r');
  result.runs = {MakeRun("arcconf", "getconfig", 1, Outcome::kTimedOut, reason)};
  EXPECT_THAT(Written(result), HasSubstr("    timed out (getconfig 1 al):\n      " + reason + "\n"));
}

TEST(ToolSummary, NamesTheFolderOfToolsOnlyIfOneIsMissing) {
  QueryResult result;
  result.runs = {Probe(1, Outcome::kTimedOut)};
  EXPECT_THAT(Written(result), Not(HasSubstr("Tools belong")));
}

TEST(ToolSummary, ShowsSixTroublesOfAToolAndCountsTheRest) {
  QueryResult result;
  for (int number = 1; number <= 8; ++number) {
    result.runs.push_back(
        MakeRun("arcconf", "getconfig", number, Outcome::kCutOff, "reason " + std::to_string(number)));
  }
  const std::string text = Written(result);
  EXPECT_THAT(text, HasSubstr("reason 6\n    and 2 other troubles: --log FILE shows all\n"));
  EXPECT_THAT(text, Not(HasSubstr("reason 7")));
}

TEST(ToolSummary, ReportsAnAbortedCollection) {
  QueryResult result;
  result.log = {
      {3, "Collection aborted: out of range inside ZxPlugin"}
  };
  EXPECT_THAT(Written(result), HasSubstr("was aborted; what had not been run by then is missing. The log says:\n"
                                         "    Collection aborted: out of range inside ZxPlugin\n"));
}

TEST(ToolSummary, ReportsThatALaterQueryRanNoTool) {
  QueryResult result;
  result.number = 2;
  EXPECT_EQ(Written(result), "\nRuns of the tools\n  none: the answers are those of the first query\n");
}

}  // namespace
