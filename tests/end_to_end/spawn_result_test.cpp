// How a run ended, besides its output: real programs, real failures.

#include "host/hxacore/spawn_result.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;

constexpr int kGenerous = 60;

std::string ChildPath() { return (ProgramFolder() / "test_child.exe").string(); }

SpawnResult RunChild(const std::vector<std::string>& arguments) {
  return RealServices().spawn(ChildPath(), arguments, kGenerous);
}

// The reported reason of a failed run; -1 if it did not fail.
int FailureOf(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  try {
    RealServices().spawn(path, arguments, limitSeconds);
    return -1;
  } catch (const TSpawnException& failure) {
    return static_cast<int>(failure.Failure());
  }
}

TEST(SpawnResult, HasTheExitStatusOfTheProgram) {
  for (const int status : {0, 1, 42}) {
    const SpawnResult result = RunChild({"exit", std::to_string(status)});
    EXPECT_EQ(result.exitStatus, status);
    EXPECT_EQ(result.output, "done\n");
    EXPECT_EQ(result.ending, "");
  }
}

TEST(SpawnResult, DistinguishesAProgramThatCannotBeStartedFromASlowOne) {
  EXPECT_EQ(FailureOf("zenx//missing.exe", {}, kGenerous), static_cast<int>(SpawnFailure::kNotInstalled));
  EXPECT_EQ(FailureOf(ChildPath(), {"sleep", "300"}, 1), static_cast<int>(SpawnFailure::kTooLong));
}

TEST(SpawnResult, ContainsTheDurationAlsoOfAFailedRun) {
  const SpawnResult result = RunChild({"sleep-silently", "1"});
  EXPECT_GE(result.seconds, 1);
  EXPECT_LT(result.seconds, kGenerous);
  try {
    RealServices().spawn(ChildPath(), {"sleep", "300"}, 1);
    ADD_FAILURE() << "it ended in time";
  } catch (const TSpawnException& failure) {
    EXPECT_GE(failure.Seconds(), 1);
    EXPECT_LT(failure.Seconds(), kGenerous);
  }
}

}  // namespace
