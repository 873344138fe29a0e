#include "host/hxacore/posix/child_process.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <future>

#include "host/hxacore/posix/process_tree.h"
#include "tests/support/test_system.h"

// As on a kernel that cannot tell of the end of a process through a descriptor.
namespace {

using namespace NKVRHXA20;
using std::chrono::seconds;
using std::chrono::steady_clock;

ChildProcess Start(const std::vector<std::string>& arguments) {
  ChildProcess child = StartProcess((ProgramFolder() / "test_child.exe").string(), arguments);
  child.end.Close();
  return child;
}

TEST(ChildProcess, WithoutADescriptorOfTheProcessAllOfTheOutputIsRead) {
  const ChildProcess child = Start({"bytes", "300000"});
  std::string output;
  EXPECT_EQ(CollectOutput(child, steady_clock::now() + seconds(60), output), OutputEnd::kComplete);
  EXPECT_EQ(output, std::string(300000, 'x'));
  EXPECT_TRUE(HasEnded(child));
  Reap(child);
}

TEST(ChildProcess, WithoutADescriptorOfTheProcessItsEndIsSeenWhileThePipeIsHeld) {
  const std::string file = (ProgramFolder() / "child_process_test.number").string();
  std::filesystem::remove(file);
  const ChildProcess child = Start({"leave", file});
  std::string output;
  EXPECT_EQ(CollectOutput(child, steady_clock::now() + seconds(60), output), OutputEnd::kLeftOpen);
  EXPECT_EQ(output, "left\n");
  EndProcessTree(child);
  Reap(child);
  std::filesystem::remove(file);
}

TEST(ChildProcess, WithoutADescriptorOfTheProcessTheLimitIsKept) {
  for (const char* const mode : {"sleep", "sleep-silently"}) {
    const ChildProcess child = Start({mode, "300"});
    std::string output;
    EXPECT_EQ(CollectOutput(child, steady_clock::now() + seconds(1), output), OutputEnd::kTooLong) << mode;
    EndProcessTree(child);
    EXPECT_TRUE(HasEnded(child)) << mode;
    Reap(child);
  }
}

TEST(ChildProcess, StartsWithoutTheSignalsThatTheHostIgnores) {
  const auto before = std::signal(SIGTERM, SIG_IGN);
  const ChildProcess child = StartProcess((ProgramFolder() / "test_child.exe").string(), {"sleep", "300"});
  std::signal(SIGTERM, before);
  kill(child.pid, SIGTERM);
  std::string output;
  EXPECT_EQ(CollectOutput(child, steady_clock::now() + seconds(30), output), OutputEnd::kComplete);
  EndProcessTree(child);
  Reap(child);
}

// The system's list of processes is read from files. One that ends while its file is open cannot be read any more.
TEST(ChildProcess, AFamilyIsEndedWhileOtherProcessesComeAndGo) {
  std::atomic<bool> isDone = false;
  const auto others = std::async(std::launch::async, [&isDone] {
    while (!isDone) Reap(Start({"exit", "0"}));
  });
  for (int run = 0; run < 30; ++run) {
    const ChildProcess child = Start({"sleep", "300"});
    EXPECT_NO_THROW(EndProcessTree(child)) << run;
    kill(child.pid, SIGKILL);
    Reap(child);
  }
  isDone = true;
}

}  // namespace
