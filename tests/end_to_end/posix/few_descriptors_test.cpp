// Systems that let the program open only a few files at once.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/hxahost_run.h"
#include "tests/support/machine_copy.h"
#include "tests/support/temporary_folder.h"

namespace {

using testing::HasSubstr;
using Texts = std::vector<std::string>;

constexpr int kFewest = 3;
constexpr int kEnough = 16;

// A machine with few objects, whose collection takes little time.
class FewDescriptors : public testing::Test {
 protected:
  FewDescriptors() {
    machine_.LeaveOnly("hrconf_64");
    machine_.RemoveTool("arcconf");
  }

  // With so many descriptors the output is complete, or the program reports the failure.
  void ExpectAllOrAFailure(Texts arguments, const std::string& failure) const {
    arguments.insert(arguments.end(), {"--directory", machine_.Directory(), "--machine-name", "M", "--local-time",
                                       "20260305123015.250000+060"});
    const ProgramResult whole = RunWithDescriptors(1024, arguments);
    int failures = 0;
    for (int most = kFewest; most <= kEnough; ++most) {
      const ProgramResult result = RunWithDescriptors(most, arguments);
      const bool isWhole = Lines(result) == Lines(whole) && result.exitStatus == whole.exitStatus;
      if (isWhole) continue;
      ++failures;
      EXPECT_NE(result.exitStatus, 0) << arguments[0] << " with " << most << " descriptors";
      EXPECT_NE(result.exitStatus, whole.exitStatus) << arguments[0] << " with " << most << " descriptors";
      EXPECT_THAT(result.out + result.err, testing::ContainsRegex(failure)) << arguments[0] << " with " << most;
    }
    EXPECT_THAT(failures, testing::AllOf(testing::Gt(0), testing::Lt(kEnough - kFewest))) << "limits that are tried";
  }

  MachineCopy machine_;
  TemporaryFolder folder_;

 private:
  // A build with sanitizers examines the types of objects with a pipe, and takes an object for damaged if it cannot
  // open one.
  ProgramResult RunWithDescriptors(int most, const Texts& arguments) const {
    const std::string noTypes = folder_.Write("suppressions", "vptr:*\n").string();
    const std::string script =
        "export UBSAN_OPTIONS=suppressions=" + noTypes + "; ulimit -n " + std::to_string(most) + "; exec \"$0\" \"$@\"";
    return RunFromShell(script, arguments);
  }

  // Times differ, the number of lines does not.
  static long Lines(const ProgramResult& result) { return std::ranges::count(result.out, '\n'); }
};

// The message of the system.
constexpr const char* kReason = "Too many open files|Error 24";

TEST_F(FewDescriptors, LeaveNothingOutOfAQuery) { ExpectAllOrAFailure({"query", "--runs"}, kReason); }

TEST_F(FewDescriptors, LeaveNothingOutOfTheStatus) { ExpectAllOrAFailure({"status"}, kReason); }

TEST_F(FewDescriptors, LeaveNothingOutOfTheHealth) { ExpectAllOrAFailure({"health"}, kReason); }

TEST_F(FewDescriptors, LeaveNothingOutOfARecording) {
  const std::string bundle = (folder_.Path() / "m.bundle").string();
  ExpectAllOrAFailure({"query", "--record", bundle, "--log", (folder_.Path() / "log").string()}, kReason);
}

// Some of the utility's runs cannot be started.
TEST_F(FewDescriptors, OrAnotherReasonNotToStartAUtilityAreAFailureOfTheQuery) {
  machine_.SetTool("arcconf", "");
  for (const char* const command : {"query", "status"}) {
    const ProgramResult result = RunHxahost({command, "--directory", machine_.Directory()});
    EXPECT_EQ(result.exitStatus, 1) << command;
    EXPECT_THAT(result.out, HasSubstr("arcconf not started"));
    EXPECT_EQ(result.err,
              "hxahost: Not all is shown: qcmdrun 0 controllers, hrconf_64 1 controller, arcconf not started. "
              "\"zenx//arcconf.exe\" cannot be started: Permission denied.\n");
  }
}

}  // namespace
