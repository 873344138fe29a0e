// Collections that are ended in the middle: by a signal, by force or by the limit of a run. No process and no file may
// remain.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "host/hxahost/system/folder_lock.h"
#include "host/hxahost/text/utf8.h"
#include "tests/end_to_end/endings.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

// A machine whose utilities start families of processes that ignore requests to end, and sleep.
class SleepingMachine {
 public:
  SleepingMachine() {
    fs::create_directories(Zenx() / "family");
    for (const char* const tool : {"qcmdrun", "hrconf_64", "arcconf"}) {
      fs::copy(ProgramFolder() / "test_child.exe", Zenx() / (std::string(tool) + ".exe"));
    }
    folder_.Write("result.json", "before");
  }

  fs::path Zenx() const { return folder_.Path() / "zenx"; }

  std::vector<std::string> Query() const {
    return {"query",
            "--directory",
            hxahost::Utf8FromPath(folder_.Path()),
            "--format",
            "json",
            "--output",
            Name("result.json"),
            "--record",
            Name("machine.bundle")};
  }

  bool HasWholeFamily() const {
    for (const char* const member : {"number", "number-child", "number-child-child", "number-daemon"}) {
      if (!fs::exists(Zenx() / "family" / member)) return false;
    }
    return true;
  }

  // The processes and files that remain some seconds after a collection, one on each line.
  std::string Leftovers() const {
    std::string left;
    for (const fs::path& programs : {Zenx(), HxahostPath()}) {
      for (const unsigned long process : ProcessesLeft(programs)) left += "process " + std::to_string(process) + "\n";
    }
    hxahost::FolderLock lock(Zenx());
    if (!lock.Take()) left += "lock\n";
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      if (entry.path() != Zenx() && entry.path().filename() != "result.json") left += entry.path().string() + "\n";
    }
    if (FileText(folder_.Path() / "result.json") != "before") left += "another result\n";
    return left;
  }

 private:
  std::string Name(const char* file) const { return hxahost::Utf8FromPath(folder_.Path() / file); }

  static std::vector<unsigned long> ProcessesLeft(const fs::path& programs) {
    const auto giveUp = steady_clock::now() + seconds(20);
    while (!ProcessesOf(programs).empty() && steady_clock::now() < giveUp) {
      std::this_thread::sleep_for(milliseconds(10));
    }
    return ProcessesOf(programs);
  }

  TemporaryFolder folder_;
};

bool WaitForFamily(const SleepingMachine& machine) {
  const auto giveUp = steady_clock::now() + seconds(60);
  while (!machine.HasWholeFamily() && steady_clock::now() < giveUp) std::this_thread::sleep_for(milliseconds(5));
  return machine.HasWholeFamily();
}

class Interruption : public testing::TestWithParam<Ending> {};

TEST_P(Interruption, EndsTheUtilityWithItsFamilyAndLeavesNothing) {
  const SleepingMachine machine;
  RunningProgram program(HxahostPath(), machine.Query());
  EXPECT_TRUE(WaitForFamily(machine));
  program.AskToEnd(GetParam().request);
  const ProgramResult result = program.Wait();
  EXPECT_EQ(result.exitStatus, GetParam().exitStatus) << result.err;
  EXPECT_EQ(result.err, GetParam().line);
  EXPECT_EQ(machine.Leftovers(), "");
}

INSTANTIATE_TEST_SUITE_P(By, Interruption, testing::ValuesIn(Endings()),
                         [](const auto& ending) { return std::string(ending.param.name); });

// How many collections the next test ends: the value of ZENX_TEST_INTERRUPTIONS in the environment, if it is set.
int CollectionsToEnd() {
  const char* const wanted = std::getenv("ZENX_TEST_INTERRUPTIONS");
  return wanted == nullptr ? 10 : std::stoi(wanted);
}

TEST(Interruptions, ManyAtAnyMomentLeaveNothing) {
  std::mt19937 random(20261122);
  std::map<std::string, int> ended;
  for (int run = 0; run < CollectionsToEnd(); ++run) {
    const SleepingMachine machine;
    const Ending& ending = Endings()[static_cast<std::size_t>(run) % Endings().size()];
    RunningProgram program(HxahostPath(), machine.Query());
    std::this_thread::sleep_for(milliseconds(std::uniform_int_distribution(0, kLongestStartMilliseconds)(random)));
    program.AskToEnd(ending.request);
    program.Wait();
    ++ended[machine.HasWholeFamily() ? "with a whole family" : "before"];
    ASSERT_EQ(machine.Leftovers(), "") << ending.name << " in run " << run;
  }
  for (const auto& [when, count] : ended) std::cout << count << " ended " << when << std::endl;
}

}  // namespace
