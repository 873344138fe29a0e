#include "host/hxahost/bundle/bundle_replay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/sample_bundle.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kArcconf = "zenx//arcconf.exe";

TEST(BundleReplay, ReturnsTheAnswersOfTheTools) {
  BundleReplay replay(SampleBundle());
  const HostServices services = replay.Services();
  const SpawnResult result = services.spawn(kArcconf, {"getconfig", "1", "al"}, 300);
  EXPECT_EQ(result.output, SampleBundle().runs[0].result.output);
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.seconds, 0.125);
  EXPECT_EQ(services.spawn(kArcconf, {"getlogs", "1", ""}, 300).ending, "signal 11");
  try {
    services.spawn("zenx//qcmdrun.exe", {}, 300);
    ADD_FAILURE() << "it ended in time";
  } catch (const TSpawnException& failure) {
    EXPECT_EQ(failure.Failure(), SpawnFailure::kTooLong);
    EXPECT_STREQ(failure.what(), "\"it\" was\nended");
    EXPECT_EQ(failure.Seconds(), 300.5);
  }
  EXPECT_THAT(replay.UnusedRuns(), IsEmpty());
  EXPECT_EQ(replay.Missing(), "");
}

TEST(BundleReplay, ThrowsEachKindOfFailureUnchanged) {
  const auto thrown = [](FailureKind kind) {
    Bundle bundle = SampleBundle();
    bundle.runs[2].failure->kind = kind;
    BundleReplay replay(bundle);
    replay.Services().spawn("zenx//qcmdrun.exe", {}, 300);
  };
  EXPECT_THROW(thrown(FailureKind::kNotInstalled), TSpawnException);
  EXPECT_THROW(thrown(FailureKind::kNotAsked), TSpawnException);
  EXPECT_THROW(thrown(FailureKind::kNotStarted), TSpawnException);
  EXPECT_THROW(thrown(FailureKind::kNotEnded), TSpawnException);
  EXPECT_THROW(thrown(FailureKind::kTooMuchOutput), TSpawnException);
  EXPECT_THROW(thrown(FailureKind::kHost), THXAException);
  EXPECT_THROW(
      {
        try {
          thrown(FailureKind::kOther);
        } catch (const THXAException&) {
          ADD_FAILURE() << "a plug-in would take it for a tool's";
        }
      },
      std::runtime_error);
}

TEST(BundleReplay, RepeatsTheSameCommandInItsOrderAndThenTheLast) {
  Bundle bundle = SampleBundle();
  bundle.runs.push_back(bundle.runs[0]);
  bundle.runs.back().result.output = "second";
  BundleReplay replay(bundle);
  const HostServices services = replay.Services();
  EXPECT_NE(services.spawn(kArcconf, {"getconfig", "1", "al"}, 300).output, "second");
  EXPECT_THAT(replay.UnusedRuns(),
              ElementsAre("zenx//arcconf.exe getconfig 1 al", "zenx//arcconf.exe getlogs 1 ", "zenx//qcmdrun.exe"));
  EXPECT_EQ(services.spawn(kArcconf, {"getconfig", "1", "al"}, 300).output, "second");
  EXPECT_EQ(services.spawn(kArcconf, {"getconfig", "1", "al"}, 300).output, "second") << "as from memory";
  EXPECT_EQ(replay.Missing(), "");
}

TEST(BundleReplay, NamesACommandThatItDoesNotHold) {
  BundleReplay replay(SampleBundle());
  EXPECT_ANY_THROW(replay.Services().spawn(kArcconf, {"getconfig", "2", "al"}, 300));
  EXPECT_EQ(replay.Missing(), "zenx//arcconf.exe getconfig 2 al");
}

TEST(BundleReplay, ReturnsTheTimesInTheirOrderAndThenTheLast) {
  BundleReplay replay(SampleBundle());
  const HostServices services = replay.Services();
  std::vector<std::string> seconds;
  for (int time = 0; time < 5; ++time) seconds.push_back(services.localTime().ToString().substr(12, 2));
  EXPECT_THAT(seconds, ElementsAre("00", "00", "01", "01", "01"));
  EXPECT_EQ(services.machineName(), "DBSERVER");
  EXPECT_EQ(replay.QuerySeconds(1), 1.25);
  EXPECT_EQ(replay.QuerySeconds(2), 0);
}

TEST(BundleReplay, ReturnsTheLogOrTheReasonWhyItCouldNotBeCaptured) {
  BundleReplay replay(SampleBundle());
  EXPECT_EQ(replay.Services().capture("any"), SampleBundle().raidLog->bytes);
  Bundle locked = SampleBundle();
  locked.raidLog->failure = RecordedFailure{FailureKind::kHost, "locked"};
  BundleReplay failing(locked);
  EXPECT_THROW(failing.Services().capture("any"), THXAException);
  EXPECT_EQ(failing.Missing(), "");
  Bundle without = SampleBundle();
  without.raidLog.reset();
  BundleReplay lacking(without);
  EXPECT_ANY_THROW(lacking.Services().capture("file"));
  EXPECT_EQ(lacking.Missing(), "the file file");
}

}  // namespace
