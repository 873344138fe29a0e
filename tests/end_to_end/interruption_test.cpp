// Collections that are ended in the middle: by a signal, by force or by the limit of a run. No process and no file may
// remain.

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/result/json_result.h"
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

  // Ends by itself, when the first run meets its limit.
  std::vector<std::string> LimitedQuery(int limit) const {
    std::vector<std::string> arguments = Query();
    arguments.insert(arguments.end(), {"--limit", std::to_string(limit), "--deadline", std::to_string(limit)});
    return arguments;
  }

  bool HasWholeFamily() const {
    for (const char* const member : {"number", "number-child", "number-child-child", "number-daemon"}) {
      if (!fs::exists(Zenx() / "family" / member)) return false;
    }
    return true;
  }

  // The processes and files that remain some seconds after a collection that did not come to its end, one on each line.
  std::string Leftovers() const {
    std::string left = LeftoversBesideFiles();
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      if (entry.path() != Zenx() && entry.path().filename() != "result.json") left += entry.path().string() + "\n";
    }
    if (FileText(folder_.Path() / "result.json") != "before") left += "another result\n";
    return left;
  }

  // The same of one that wrote its files. Throws where one of them is not whole.
  std::string LeftoversOfWhole() const {
    std::string left = LeftoversBesideFiles();
    hxahost::ParseJsonResult(FileText(folder_.Path() / "result.json"), "result.json");
    hxahost::ReadBundleFile(folder_.Path() / "machine.bundle");
    const auto files = std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator());
    if (files != 3) left += "more files\n";
    return left;
  }

 private:
  std::string LeftoversBesideFiles() const {
    std::string left;
    for (const fs::path& programs : {Zenx(), HxahostPath()}) {
      for (const unsigned long process : ProcessesLeft(programs)) left += "process " + std::to_string(process) + "\n";
    }
    hxahost::FolderLock lock(Zenx());
    if (!lock.Take()) left += "lock\n";
    return left;
  }

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
  RunningProgram program(HxahostPath(), machine.Query(), Console::kOwn);
  EXPECT_TRUE(WaitForFamily(machine));
  program.AskToEnd(GetParam().request);
  const ProgramResult result = program.Wait();
  EXPECT_EQ(result.exitStatus, GetParam().exitStatus) << result.err;
  EXPECT_EQ(result.err, GetParam().line);
  EXPECT_EQ(machine.Leftovers(), "");
}

INSTANTIATE_TEST_SUITE_P(By, Interruption, testing::ValuesIn(Endings()),
                         [](const auto& ending) { return std::string(ending.param.name); });

TEST(Interruptions, ByTheLimitOfARunEndTheUtilityWithItsFamilyAndLeaveWholeFiles) {
  constexpr int kSeconds = 10;  // enough for the family to start
  const SleepingMachine machine;
  const ProgramResult result = RunningProgram(HxahostPath(), machine.LimitedQuery(kSeconds)).Wait();
  EXPECT_EQ(result.exitStatus, 4);
  EXPECT_THAT(result.err, testing::HasSubstr("qcmdrun timed out, hrconf_64 not asked"));
  EXPECT_TRUE(machine.HasWholeFamily());
  EXPECT_EQ(machine.LeftoversOfWhole(), "");
}

// How many collections the next test ends: the value of ZENX_TEST_INTERRUPTIONS in the environment, if it is set.
int CollectionsToEnd() {
  const char* const wanted = std::getenv("ZENX_TEST_INTERRUPTIONS");
  return wanted == nullptr ? 10 : std::stoi(wanted);
}

TEST(Interruptions, ManyAtAnyMomentLeaveNothing) {
  std::mt19937 random(20261122);
  std::map<std::string, int> ended;
  const std::size_t ways = Endings().size() + 1;  // the last: by the limit of a run
  for (int run = 0; run < CollectionsToEnd(); ++run) {
    const SleepingMachine machine;
    const std::size_t way = static_cast<std::size_t>(run) % ways;
    const Ending* const ending = way < Endings().size() ? &Endings()[way] : nullptr;
    RunningProgram program(HxahostPath(), ending ? machine.Query() : machine.LimitedQuery(1), Console::kOwn);
    if (ending) {
      std::this_thread::sleep_for(milliseconds(std::uniform_int_distribution(0, kLongestStartMilliseconds)(random)));
      program.AskToEnd(ending->request);
    }
    const ProgramResult result = program.Wait();
    const std::string name = ending ? ending->name : "limit";
    ++ended[name + (machine.HasWholeFamily() ? " with a whole family" : " before")];
    ASSERT_EQ(ending ? machine.Leftovers() : machine.LeftoversOfWhole(), "") << name << " in run " << run << result.err;
  }
  for (const auto& [when, count] : ended) std::cout << count << " ended by " << when << std::endl;
}

}  // namespace
