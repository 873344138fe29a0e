#include "host/hxahost/bundle/bundle_recorder.h"

#include <gtest/gtest.h>

#include <new>
#include <sstream>

#include "host/hxahost/bundle/bundle_replay.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/raid_log_setting.h"
#include "tests/support/sample_bundle.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

// Requests everything that a bundle contains, each once, in its order.
void AskForAll(const HostServices& services, const Bundle& bundle) {
  services.machineName();
  for (const RecordedTime& time : bundle.localTimes) {
    for (std::size_t count = 0; count < time.count; ++count) services.localTime();
  }
  for (const RecordedRun& run : bundle.runs) {
    try {
      services.spawn(run.path, run.arguments, run.limitSeconds);
      EXPECT_FALSE(run.failure);
    } catch (const TSpawnException& failure) {
      EXPECT_EQ(failure.what(), run.failure->message);
    }
  }
  EXPECT_EQ(services.capture(bundle.raidLog->path), bundle.raidLog->bytes);
}

TEST(BundleRecorder, KeepsEveryAnswerOfTheServices) {
  const RaidLogSetting setting("C:\\ZXM\\");
  BundleReplay replay(SampleBundle());
  BundleRecorder recorder(18, "C:\\tools");
  AskForAll(recorder.Wrap(replay.Services()), SampleBundle());
  recorder.AddQuery(1.25);
  Bundle recorded = recorder.Recorded();
  // The system of the test has a version of its own.
  recorded.osVersion = SampleBundle().osVersion;
  EXPECT_EQ(WriteBundle(recorded), WriteBundle(SampleBundle()));
}

TEST(BundleRecorder, WritesTheSameBundlePieceByPiece) {
  BundleReplay replay(SampleBundle());
  BundleRecorder recorder(18, "C:\\tools");
  const HostServices services = recorder.Wrap(replay.Services());
  AskForAll(services, SampleBundle());
  std::ostringstream out;
  recorder.Write(out);
  EXPECT_EQ(out.str(), WriteBundle(recorder.Recorded()));
  EXPECT_EQ(recorder.Recorded().runs[0].result.output, SampleBundle().runs[0].result.output);
}

TEST(BundleRecorder, NotesALogThatThePlugInDoesNotOpen) {
  BundleRecorder recorder(std::nullopt, "");
  const HostServices services = recorder.Wrap(RealServices());
  services.log(3, "RAID manager log not read");
  services.log(3, "C:\\RaidEvtA.log not found.");
  EXPECT_FALSE(recorder.Recorded().raidLog);
  services.log(1, "RAID manager log not read: C:\\RaidEvtA.log: it is larger than 256 MiB.");
  const Bundle bundle = recorder.Recorded();
  ASSERT_TRUE(bundle.raidLog);
  EXPECT_EQ(bundle.raidLog->path, "C:\\RaidEvtA.log");
  EXPECT_EQ(bundle.raidLog->failure->kind, FailureKind::kNotOpened);
  EXPECT_EQ(bundle.raidLog->failure->message, "it is larger than 256 MiB");
  EXPECT_EQ(ReadBundle(WriteBundle(bundle)).raidLog->failure->message, "it is larger than 256 MiB");
}

TEST(BundleRecorder, RecordsTheSystemThatThePlugInSees) {
  {
    const RaidLogSetting setting("D:\\");
    const BundleRecorder recorder(std::nullopt, "");
    EXPECT_EQ(recorder.Recorded().raidLogDir, "D:\\");
    EXPECT_TRUE(recorder.Recorded().osVersion.isWindowsNt);
    EXPECT_GE(recorder.Recorded().osVersion.major, 6U);
  }
  const RaidLogSetting none(std::nullopt);
  EXPECT_EQ(BundleRecorder(std::nullopt, "").Recorded().raidLogDir, std::nullopt);
}

TEST(BundleRecorder, PassesOnExceptionsAndKeepsTheirKind) {
  BundleRecorder recorder(std::nullopt, "");
  HostServices services = RealServices();
  services.spawn = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw THXAException("no");
  };
  EXPECT_THROW(recorder.Wrap(services).spawn("tool", {}, 1), THXAException);
  services.spawn = [](const std::string&, const std::vector<std::string>&, int) -> SpawnResult {
    throw std::bad_alloc();
  };
  EXPECT_THROW(recorder.Wrap(services).spawn("tool", {}, 1), std::bad_alloc);
  ASSERT_EQ(recorder.Recorded().runs.size(), 2U);
  EXPECT_EQ(recorder.Recorded().runs[0].failure->kind, FailureKind::kHost);
  EXPECT_EQ(recorder.Recorded().runs[1].failure->kind, FailureKind::kOther);
}

TEST(BundleRecorder, KeepsTheBytesOfALogThatCannotBeCaptured) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("RaidEvtA.log", "a\r\nb").string();
  BundleRecorder recorder(std::nullopt, "");
  HostServices services = RealServices();
  services.capture = [](const std::string&) -> std::string { throw THXAException("locked"); };
  EXPECT_THROW(recorder.Wrap(services).capture(path), THXAException);
  EXPECT_EQ(recorder.Recorded().raidLog->bytes, "a\r\nb");
  EXPECT_EQ(recorder.Recorded().raidLog->failure->message, "locked");
}

}  // namespace
