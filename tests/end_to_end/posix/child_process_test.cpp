#include "host/hxacore/posix/child_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <filesystem>
#include <future>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/posix/keeper.h"
#include "tests/support/file_text.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;
using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;
using testing::HasSubstr;
using testing::ThrowsMessage;

std::string ChildPath() { return (ProgramFolder() / "test_child.exe").string(); }

OutputEnd Collect(ChildProcess& child, milliseconds time = seconds(30)) {
  std::string output;
  return CollectOutput(child, steady_clock::now() + time, output);
}

// The number in a file, as soon as it is written.
pid_t NumberIn(const std::filesystem::path& file) {
  for (int attempt = 0; attempt < 1000; ++attempt) {
    if (std::filesystem::exists(file) && FileText(file).ends_with("\n")) return std::stoi(FileText(file));
    std::this_thread::sleep_for(milliseconds(10));
  }
  return 0;
}

TEST(ChildProcess, StartsWithoutTheSignalsThatTheHostIgnores) {
  const auto before = std::signal(SIGTERM, SIG_IGN);
  ChildProcess child = StartProcess(ChildPath(), {"sleep", "300"});
  std::signal(SIGTERM, before);
  EXPECT_EQ(Collect(child, milliseconds(500)), OutputEnd::kTooLong);
  kill(child.process, SIGTERM);
  EXPECT_EQ(Collect(child), OutputEnd::kComplete);
  EXPECT_TRUE(EndProcessTree(child));
}

TEST(ChildProcess, AFamilyIsEndedWhileOtherProcessesComeAndGo) {
  std::atomic<bool> isDone = false;
  const auto others = std::async(std::launch::async, [&isDone] {
    while (!isDone) SpawnProcess(ChildPath(), {"exit", "0"}, 30);
  });
  for (int run = 0; run < 30; ++run) {
    ChildProcess child = StartProcess(ChildPath(), {"sleep", "300"});
    EXPECT_TRUE(EndProcessTree(child)) << run;
  }
  isDone = true;
}

TEST(ChildProcess, EndsWithItsKeeperInAnUnknownWay) {
  ChildProcess child = StartProcess(ChildPath(), {"sleep", "300"});
  EXPECT_EQ(Collect(child, milliseconds(500)), OutputEnd::kTooLong);
  kill(child.keeper, SIGKILL);
  EXPECT_EQ(Collect(child), OutputEnd::kComplete);
  EXPECT_FALSE(child.waitStatus.has_value());
  EXPECT_TRUE(EndProcessTree(child));
  for (int attempt = 0; attempt < 1000 && IsRunning(static_cast<unsigned long>(child.process)); ++attempt) {
    std::this_thread::sleep_for(milliseconds(10));
  }
  EXPECT_FALSE(IsRunning(static_cast<unsigned long>(child.process)));
}

// Ends processes with a signal that they can ignore, as if the system could not end them.
class Unending {
 public:
  Unending() { endingSignal = SIGTERM; }
  ~Unending() { endingSignal = SIGKILL; }
};

TEST(ChildProcess, ThatCannotBeEndedIsNamedAndItsProgramIsNotStartedAgainBeforeItEnds) {
  const TemporaryFolder folder;
  const std::filesystem::path program = folder.Path() / "test_child.exe";
  std::filesystem::copy(ChildPath(), program);
  const std::filesystem::path number = folder.Path() / "number";
  {
    const Unending unending;
    EXPECT_THAT(
        [&] {
          SpawnProcess(program.string(), {"sleep-unasked", number.string(), "300"}, 1);
        },
        ThrowsMessage<TSpawnException>(HasSubstr("cannot be ended (process ")));
  }
  const pid_t process = NumberIn(number);
  ASSERT_GT(process, 0);
  EXPECT_THAT(
      [&] {
        SpawnProcess(program.string(), {"exit", "0"}, 30);
      },
      ThrowsMessage<TSpawnException>(HasSubstr("cannot be started: an earlier run of it cannot be ended")));
  EXPECT_EQ(SpawnProcess(ChildPath(), {"exit", "0"}, 30).output, "done\n") << "another program is";
  kill(process, SIGKILL);
  waitpid(-1, nullptr, 0);  // for the keeper
  EXPECT_EQ(SpawnProcess(program.string(), {"exit", "0"}, 30).output, "done\n");
}

}  // namespace
