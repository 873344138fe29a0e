#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/services.h"
#include "tests/support/test_system.h"

namespace {

namespace fs = std::filesystem;
using namespace NKVRHXA20;
using std::chrono::seconds;
using std::chrono::steady_clock;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using testing::ThrowsMessage;

constexpr int kGenerous = 60;
const std::string kForLong = "300";

std::string ChildPath() { return (ProgramFolder() / "test_child.exe").string(); }

std::string RunChild(const std::vector<std::string>& arguments, int limitSeconds = kGenerous) {
  return TOSSpecific::SpawnProcess(ChildPath(), arguments, limitSeconds);
}

// A file in which a process writes its number; the destructor deletes it.
class NumberFile {
 public:
  explicit NumberFile(const std::string& furtherName = "")
      : path_(ProgramFolder() / ("spawn_process_test.number" + furtherName)) {
    fs::remove(path_);
  }
  ~NumberFile() {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }
  NumberFile(const NumberFile&) = delete;
  NumberFile& operator=(const NumberFile&) = delete;

  std::string Path() const { return path_.string(); }
  unsigned long Number() const {
    unsigned long number = 0;
    std::ifstream(path_) >> number;
    return number;
  }

 private:
  fs::path path_;
};

class WorkingDirectory {
 public:
  explicit WorkingDirectory(const fs::path& path) { fs::current_path(path); }
  ~WorkingDirectory() { fs::current_path(before_); }
  WorkingDirectory(const WorkingDirectory&) = delete;
  WorkingDirectory& operator=(const WorkingDirectory&) = delete;

 private:
  fs::path before_ = fs::current_path();
};

TEST(SpawnProcess, PassesArgumentsUnchanged) {
  const std::vector<std::string> cases = {
      "plain",
      "two words",
      "",
      " ",
      "tab\there",
      "\"",
      "say \"hi\"",
      "back\\slash",
      "ends in a backslash\\",
      "\\",
      "\\\"",
      "two\\\\\" quotes\\\\",
      "Gr\xC3\xB6\xC3\x9F"
      "e \xE2\x82\xAC",
      "a'b",
      "$HOME %PATH% *?",
      "new\nline",
      "--option=a b\\\\",
      "&|<>^!;",
  };
  std::vector<std::string> arguments = {"arguments"};
  std::string expected;
  for (const std::string& argument : cases) {
    arguments.push_back(argument);
    expected += std::to_string(argument.size()) + ":" + argument + "\n";
  }
  EXPECT_EQ(RunChild(arguments), expected);
}

// Characters that a shell, the C runtime or the system may interpret.
std::string RandomArgument(std::mt19937& random) {
  constexpr std::string_view kCharacters = "\"\"\"\\\\\\ \t\n\r\v%^&|<>()!'`$;*?[]{,}~=/-#@aZ9";
  const std::string pieces[] = {"%PATH%",           "$HOME",       "$(", "\xC3\xA9", "\xE2\x82\xAC",
                                "\xF0\x9F\x98\x80", "\xE2\x80\xAE"};
  std::uniform_int_distribution<std::size_t> piece(0, kCharacters.size() + std::size(pieces) - 1);
  std::string argument;
  for (unsigned count = std::uniform_int_distribution(0U, 9U)(random); count > 0; --count) {
    const std::size_t index = piece(random);
    argument += index < kCharacters.size() ? std::string(1, kCharacters[index]) : pieces[index - kCharacters.size()];
  }
  return argument;
}

TEST(SpawnProcess, PassesListsOfRandomArgumentsUnchanged) {
  constexpr int kArguments = 100;
  std::mt19937 random(20260305);
  for (int run = 0; run < kManyRuns / 50; ++run) {
    std::vector<std::string> arguments = {"arguments"};
    std::string expected;
    for (int count = 0; count < kArguments; ++count) {
      arguments.push_back(RandomArgument(random));
      expected += std::to_string(arguments.back().size()) + ":" + arguments.back() + "\n";
    }
    ASSERT_EQ(RunChild(arguments), expected) << "list " << run;
  }
}

TEST(SpawnProcess, KeepsStandardOutputAndStandardErrorInTheOrderWritten) {
  EXPECT_EQ(RunChild({"both", "6"}), "out 0\nerr 1\nout 2\nerr 3\nout 4\nerr 5\n");
}

TEST(SpawnProcess, ReturnsTheOutputForAnyExitStatus) {
  EXPECT_EQ(RunChild({"exit", "0"}), "done\n");
  EXPECT_EQ(RunChild({"exit", "77"}), "done\n");
}

TEST(SpawnProcess, ReturnsEveryByteOfAnOutputLargerThanAnyPipe) {
  for (const std::size_t count : {0U, 1U, 65535U, 65536U, 65537U, 5000000U}) {
    EXPECT_EQ(RunChild({"bytes", std::to_string(count)}), std::string(count, 'x'));
  }
}

TEST(SpawnProcess, UsesTheNullDeviceAsStandardInput) { EXPECT_EQ(RunChild({"input"}), "0 bytes\n"); }

TEST(SpawnProcess, PutsTheCLocaleIntoTheEnvironmentAndNoOther) {
  for (const char* const name : {"LANG", "LANGUAGE", "LC_MESSAGES", "LC_ALL"}) SetVariable(name, "xx_XX.UTF-8");
  EXPECT_EQ(RunChild({"locale"}), "LC_ALL=C\n");
}

TEST(SpawnProcess, PassesOnTheRestOfTheEnvironment) {
  SetVariable("ZENX_TEST_VARIABLE", "one two");
  EXPECT_EQ(RunChild({"variable", "ZENX_TEST_VARIABLE"}), "one two\n");
}

TEST(SpawnProcess, TakesARelativePathFromTheWorkingDirectoryWithOneSlashOrTwo) {
  const std::string folder = ProgramFolder().filename().string();
  {
    const WorkingDirectory above(ProgramFolder().parent_path());
    EXPECT_EQ(TOSSpecific::SpawnProcess(folder + "/test_child.exe", {"exit", "0"}, kGenerous), "done\n");
    EXPECT_EQ(TOSSpecific::SpawnProcess(folder + "//test_child.exe", {"exit", "0"}, kGenerous), "done\n");
    EXPECT_THROW(TOSSpecific::SpawnProcess("test_child.exe", {"exit", "0"}, kGenerous), THXAException);
  }
  const WorkingDirectory inside(ProgramFolder());
  EXPECT_EQ(TOSSpecific::SpawnProcess("test_child.exe", {"exit", "0"}, kGenerous), "done\n");
}

TEST(SpawnProcess, ReportsInOneLineWhichProgramCannotBeStartedAndWhy) {
  const auto isOneLine = AllOf(Not(HasSubstr("\n")), Not(HasSubstr("\r")), Not(EndsWith(": ")));
  EXPECT_THAT([] { TOSSpecific::SpawnProcess("zenx//missing.exe", {}, kGenerous); },
              ThrowsMessage<THXAException>(AllOf(StartsWith("\"zenx//missing.exe\" cannot be started: "), isOneLine)));
  const std::string folder = ProgramFolder().string();
  EXPECT_THAT([&] { TOSSpecific::SpawnProcess(folder, {}, kGenerous); },
              ThrowsMessage<THXAException>(AllOf(StartsWith("\"" + folder + "\" cannot be started: "), isOneLine)));
  EXPECT_THROW(TOSSpecific::SpawnProcess("", {}, kGenerous), THXAException);
}

TEST(SpawnProcess, EndsAProgramThatRunsBeyondTheLimit) {
  const auto begin = steady_clock::now();
  EXPECT_THAT(
      [] {
        RunChild({"sleep", kForLong}, 1);
      },
      ThrowsMessage<THXAException>("\"" + ChildPath() + "\" was ended: it ran longer than 1 seconds"));
  EXPECT_GE(steady_clock::now() - begin, seconds(1));
  EXPECT_LT(steady_clock::now() - begin, seconds(30));
}

TEST(SpawnProcess, EndsAProgramThatIgnoresTermination) {
  const NumberFile file;
  EXPECT_THROW(RunChild({"sleep-unasked", file.Path(), kForLong}, 3), THXAException);
  ASSERT_NE(file.Number(), 0U);
  EXPECT_FALSE(IsRunning(file.Number()));
}

TEST(SpawnProcess, EndsAProgramThatClosesItsOutputAndRunsBeyondTheLimit) {
  EXPECT_THROW(RunChild({"sleep-silently", kForLong}, 1), THXAException);
}

TEST(SpawnProcess, WaitsForAProgramThatClosesItsOutputAndEndsInTime) {
  const auto begin = steady_clock::now();
  EXPECT_EQ(RunChild({"sleep-silently", "1"}), "before\n");
  EXPECT_GE(steady_clock::now() - begin, seconds(1));
}

struct ModeCase {
  const char* name;
  const char* mode;
};

void PrintTo(const ModeCase& mode, std::ostream* out) { *out << mode.name; }

// The program has ended by itself: its output counts, and processes that it left end with the run.
class SpawnProcessLeft : public testing::TestWithParam<ModeCase> {};

TEST_P(SpawnProcessLeft, ReturnsTheOutputAndEndsRemainingProcesses) {
  const NumberFile file;
  const auto begin = steady_clock::now();
  const std::string output = RunChild({GetParam().mode, file.Path()});
  EXPECT_NE(output.find("left\n"), std::string::npos) << output.size() << " bytes without it";
  EXPECT_LT(steady_clock::now() - begin, seconds(kGenerous / 2));
  ASSERT_NE(file.Number(), 0U);
  EXPECT_FALSE(IsRunning(file.Number()));
}

INSTANTIATE_TEST_SUITE_P(What, SpawnProcessLeft,
                         testing::Values(ModeCase{"InTheGroup", "leave"}, ModeCase{"OutOfTheGroup", "detach"},
                                         ModeCase{"WritingForEver", "leave-flood"},
                                         ModeCase{"WithoutOutputGroupOrParent", "daemon"}),
                         [](const auto& mode) { return mode.param.name; });

// The program runs beyond the limit, and has started other processes.
class SpawnProcessTree : public testing::TestWithParam<ModeCase> {};

TEST_P(SpawnProcessTree, EndsTheProcessesOfTheProgramAtTheLimit) {
  const NumberFile file;
  EXPECT_THROW(RunChild({GetParam().mode, file.Path(), kForLong}, 3), THXAException);
  ASSERT_NE(file.Number(), 0U);
  EXPECT_FALSE(IsRunning(file.Number()));
}

INSTANTIATE_TEST_SUITE_P(What, SpawnProcessTree,
                         testing::Values(ModeCase{"OutOfTheGroup", "detach-sleep"},
                                         ModeCase{"WithoutOutputGroupOrParent", "daemon-sleep"}),
                         [](const auto& mode) { return mode.param.name; });

TEST(SpawnProcess, EndsAFamilyOfProcessesThatIgnoreRequests) {
  const NumberFile itself;
  const NumberFile child("-child");
  const NumberFile grandchild("-child-child");
  const NumberFile daemon("-daemon");
  EXPECT_THROW(RunChild({"sleep-with-family", itself.Path(), kForLong}, 5), THXAException);
  for (const NumberFile* const file : {&itself, &child, &grandchild, &daemon}) {
    ASSERT_NE(file->Number(), 0U) << file->Path();
    EXPECT_FALSE(IsRunning(file->Number())) << file->Path();
  }
}

TEST(SpawnProcess, EndsAProgramThatFloodsItsOutput) {
  EXPECT_THAT([] { RunChild({"flood"}); },
              ThrowsMessage<THXAException>("\"" + ChildPath() + "\" was ended: it wrote more than 64 MiB"));
}

TEST(SpawnProcess, TakesAsMuchOutputAsIsAllowedAndNotAByteMore) {
  constexpr std::size_t kMost = std::size_t{64} << 20U;
  EXPECT_EQ(RunChild({"bytes", std::to_string(kMost)}).size(), kMost);
  EXPECT_THROW(RunChild({"bytes", std::to_string(kMost + 1)}), THXAException);
}

// How many runs the next test makes: the value of ZENX_TEST_SPAWNS in the environment, if it is set.
int SpawnsToTry() {
  const char* const wanted = std::getenv("ZENX_TEST_SPAWNS");
  return wanted == nullptr ? kManyRuns : std::stoi(wanted);
}

// The resources of this process.
struct Holdings {
  std::size_t handles = OpenHandleCount();
  std::size_t memory = MemoryInUse();
};

std::ostream& operator<<(std::ostream& out, const Holdings& held) {
  return out << held.handles << " handles and " << held.memory << " bytes";
}

void RunInThreads(int threadCount, int runs) {
  const auto runMany = [](int count) {
    int good = 0;
    for (int run = 0; run < count; ++run) good += RunChild({"exit", "1"}) == "done\n" ? 1 : 0;
    return good;
  };
  std::vector<std::future<int>> threads;
  for (int thread = 0; thread < threadCount; ++thread) threads.push_back(std::async(std::launch::async, runMany, runs));
  for (std::future<int>& thread : threads) EXPECT_EQ(thread.get(), runs);
}

// Four at a time: one run must not inherit the handles of another either.
TEST(SpawnProcess, ManyRunsLeaveNeitherHandlesNorMemoryNorChildren) {
  constexpr int kThreads = 4;
  RunInThreads(kThreads, 1);
  const Holdings before;
  RunInThreads(kThreads, SpawnsToTry() / kThreads);
  const Holdings after;
  std::cout << before << " before " << SpawnsToTry() << " runs, " << after << " afterwards" << std::endl;
  EXPECT_LE(after.handles, before.handles + 10) << "the threads' own handles may differ, a run's would be many";
  EXPECT_LE(after.memory, before.memory + (std::size_t{2} << 20U));
  EXPECT_FALSE(HasChildren());
}

TEST(SpawnProcess, MemoryThatIsLeftWouldBeCounted) {
  const std::size_t before = MemoryInUse();
  const std::vector<char> left(std::size_t{4} << 20U, 'x');
  EXPECT_GT(MemoryInUse(), before + left.size() / 2);
}

TEST(SpawnProcess, AHandleThatIsLeftWouldBeCounted) {
  const std::size_t before = OpenHandleCount();
  const std::ifstream file(ChildPath());
  EXPECT_GT(OpenHandleCount(), before);
}

TEST(SpawnProcess, FailuresLeaveNeitherHandlesNorChildren) {
  const auto fail = [] {
    const NumberFile file;
    EXPECT_THROW(TOSSpecific::SpawnProcess("missing", {}, kGenerous), THXAException);
    EXPECT_THROW(RunChild({"sleep", kForLong}, 0), THXAException);
    EXPECT_EQ(RunChild({"leave", file.Path()}), "left\n");
  };
  fail();
  const std::size_t before = OpenHandleCount();
  for (int run = 0; run < 5; ++run) fail();
  EXPECT_EQ(OpenHandleCount(), before);
  EXPECT_FALSE(HasChildren());
}

}  // namespace
