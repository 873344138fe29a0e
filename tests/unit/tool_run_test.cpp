#include "host/hxahost/result/tool_run.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "plugin/host_interface/exception.h"

namespace {

using namespace NKVRHXA20;

using hxahost::ArgumentsText;
using hxahost::Outcome;
using hxahost::OutcomeWord;
using hxahost::SpawnAndRecord;
using hxahost::ToolRun;
using hxahost::ToolRunList;

constexpr int kLimit = 300;
const std::vector<std::string> kArguments = {"getconfig", "1", "al"};
const std::string kWhole = "Controller information\r\nCommand completed successfully.\r\n";

ToolRun RecordOne(const SpawnFunction& spawn) {
  ToolRunList runs;
  try {
    SpawnAndRecord(spawn, "zenx//arcconf.exe", kArguments, kLimit, runs);
  } catch (const std::exception&) {
    EXPECT_EQ(runs.size(), 1U);
  }
  return runs.at(0);
}

ToolRun RecordResult(const SpawnResult& result) {
  return RecordOne([&result](const std::string&, const std::vector<std::string>&, int) { return result; });
}

ToolRun RecordFailure(SpawnFailure failure) {
  return RecordOne([failure](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw TSpawnException(failure, "reason");
  });
}

TEST(ToolRun, KeepsTheExactCommandAndTheSizeOfItsOutput) {
  const ToolRun run = RecordResult(kWhole);
  EXPECT_EQ(run.path, "zenx//arcconf.exe");
  EXPECT_EQ(run.arguments, kArguments);
  EXPECT_EQ(run.bytes, kWhole.size());
  EXPECT_EQ(OutcomeWord(run.outcome), "ok");
  EXPECT_EQ(run.failure, "");
  EXPECT_FALSE(run.exitStatus.has_value());  // a text without a status
}

TEST(ToolRun, HandsPathArgumentsAndLimitToTheServiceAndItsResultBack) {
  ToolRunList runs;
  const auto spawn = [](const std::string& path, const std::vector<std::string>& arguments, int limit) {
    return path + " " + arguments.at(0) + " " + std::to_string(limit);
  };
  EXPECT_EQ(SpawnAndRecord(spawn, "tool", kArguments, kLimit, runs).output, "tool getconfig 300");
}

TEST(ToolRun, HasTheDurationOfTheService) {
  SpawnResult result(kWhole);
  result.seconds = 1.5;
  EXPECT_EQ(RecordResult(result).seconds, 1.5);
  const auto tooLong = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw TSpawnException(SpawnFailure::kTooLong, "reason", 300.5);
  };
  EXPECT_EQ(RecordOne(tooLong).seconds, 300.5);
}

TEST(ToolRun, NamesTheLimitOfARun) {
  EXPECT_EQ(RecordFailure(SpawnFailure::kTooLong).failure, "it did not answer within 300 s");
  const auto recorded = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw TSpawnException(SpawnFailure::kTooLong, "reason", 60.02);
  };
  EXPECT_EQ(RecordOne(recorded).failure, "it did not answer within 60 s") << "in a replay the limit was another one";
}

TEST(ToolRun, NamesTheProcessOfARunThatCannotBeEndedAndOfNoOther) {
  const auto ended = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw TSpawnException(SpawnFailure::kTooLong, "\"cannot be ended/arcconf.exe\" was ended", 300.5);
  };
  EXPECT_EQ(RecordOne(ended).failure, "it did not answer within 300 s");
  EXPECT_EQ(RecordFailure(SpawnFailure::kNotEnded).failure, "it did not answer within 300 s: reason");
}

TEST(ToolRun, CallsACompleteAnswerWithAnExitStatusFailed) {
  SpawnResult result(kWhole);
  result.exitStatus = 0;
  EXPECT_EQ(OutcomeWord(RecordResult(result).outcome), "ok");
  result.exitStatus = 3221225477;
  const ToolRun run = RecordResult(result);
  EXPECT_EQ(OutcomeWord(run.outcome), "failed");
  EXPECT_EQ(run.exitStatus, 3221225477);
  EXPECT_EQ(run.failure, "its exit status is 3221225477");
}

TEST(ToolRun, CallsACompleteAnswerOfAProgramThatASignalEndedFailed) {
  SpawnResult result(kWhole);
  result.ending = "signal 11";
  const ToolRun run = RecordResult(result);
  EXPECT_EQ(OutcomeWord(run.outcome), "failed");
  EXPECT_FALSE(run.exitStatus.has_value());
  EXPECT_EQ(run.failure, "it was ended by the system: signal 11");
}

// On Windows, a missing library ends a program like this.
TEST(ToolRun, SaysHowAProgramEndedThatWroteNothing) {
  SpawnResult result(std::string(""));
  result.exitStatus = 0;
  EXPECT_EQ(OutcomeWord(RecordResult(result).outcome), "empty");
  EXPECT_EQ(RecordResult(result).failure, "it wrote nothing");
  result.exitStatus = 3221225781;
  EXPECT_EQ(OutcomeWord(RecordResult(result).outcome), "failed");
  EXPECT_EQ(RecordResult(result).failure, "it wrote nothing, and its exit status is 3221225781");
  result.ending = "signal 11";
  EXPECT_EQ(OutcomeWord(RecordResult(result).outcome), "failed");
  EXPECT_EQ(RecordResult(result).failure, "it wrote nothing, and it was ended by the system: signal 11");
}

TEST(ToolRun, LeavesARefusalARefusalForAnyExitStatus) {
  SpawnResult result(std::string("Controllers found: 0\r\n"));
  result.exitStatus = 1;
  EXPECT_EQ(OutcomeWord(RecordResult(result).outcome), "refused");
}

TEST(ToolRun, DistinguishesTheWaysOfFailing) {
  EXPECT_EQ(OutcomeWord(RecordFailure(SpawnFailure::kNotInstalled).outcome), "not installed");
  EXPECT_EQ(OutcomeWord(RecordFailure(SpawnFailure::kNotStarted).outcome), "not started");
  EXPECT_EQ(OutcomeWord(RecordFailure(SpawnFailure::kTooLong).outcome), "timed out");
  EXPECT_EQ(OutcomeWord(RecordFailure(SpawnFailure::kNotEnded).outcome), "timed out");
  EXPECT_EQ(OutcomeWord(RecordFailure(SpawnFailure::kTooMuchOutput).outcome), "cut off");
  EXPECT_EQ(OutcomeWord(RecordFailure(SpawnFailure::kNotAsked).outcome), "not asked");
  EXPECT_EQ(RecordFailure(SpawnFailure::kTooMuchOutput).failure, "reason");
}

TEST(ToolRun, TakesAnyOtherFailureForARunThatWasNotStarted) {
  const ToolRun run = RecordOne([](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw THXAException("no \x1b such file");
  });
  EXPECT_EQ(OutcomeWord(run.outcome), "not started");
  EXPECT_EQ(run.failure, "no \\x1b such file");
}

TEST(ToolRun, PassesOnExceptionsOfTheServiceUnchanged) {
  ToolRunList runs;
  const auto failing = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw TSpawnException(SpawnFailure::kTooLong, "reason");
  };
  EXPECT_THROW(SpawnAndRecord(failing, "tool", {}, kLimit, runs), TSpawnException);
  const auto outOfMemory = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw std::bad_alloc();
  };
  EXPECT_THROW(SpawnAndRecord(outOfMemory, "tool", {}, kLimit, runs), std::bad_alloc);
  EXPECT_EQ(runs.size(), 2U);
}

TEST(ToolRun, WritesItsArgumentsOnOneLine) {
  ToolRun run;
  run.arguments = {"getlogs", "1", "a\nb"};
  EXPECT_EQ(ArgumentsText(run), "getlogs 1 a\\nb");
}

}  // namespace
