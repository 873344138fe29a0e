// Input files that are not ordinary files: a pipe without a writer, an endless device. The program runs with little
// memory and little time, and must need neither.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <sys/stat.h>

#include "tests/support/large_log.h"
#include "tests/support/machine_copy.h"
#include "tests/support/raid_log_setting.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using Texts = std::vector<std::string>;

constexpr int kOutOfTime = 124;  // the exit status of "timeout"

ProgramResult RunWithinBounds(const Texts& arguments) { return RunFromShell("timeout 60 \"$0\" \"$@\"", arguments); }

// An entry that is not an ordinary file.
struct Trap {
  const char* name;
  void (*make)(const fs::path& path);
};

constexpr Trap kTraps[] = {
    {"a pipe",                      [](const fs::path& path) { mkfifo(path.c_str(), 0600); }           },
    {"a link to an endless device", [](const fs::path& path) { fs::create_symlink("/dev/zero", path); }},
    {"a folder",                    [](const fs::path& path) { fs::create_directory(path); }           },
};

void ReplaceRaidLog(const MachineCopy& machine, const Trap& trap) {
  const fs::path log = fs::path(machine.Directory()) / "raid-manager/KVR/Zentraxis Manager/RaidEvtA.log";
  fs::remove(log);
  trap.make(log);
}

TEST(InputFiles, ARaidManagersLogThatIsNotAFileIsNamedAndTheRestIsShown) {
  const RaidLogSetting setting("raid-manager\\");
  for (const Trap& trap : kTraps) {
    const MachineCopy machine;
    ReplaceRaidLog(machine, trap);
    const ProgramResult result = RunWithinBounds({"status", "--directory", machine.Directory(), "--width", "200"});
    EXPECT_EQ(result.exitStatus, 0) << trap.name << result.err;
    EXPECT_THAT(result.out, HasSubstr("RAID manager log not read")) << trap.name;
    EXPECT_THAT(result.out, HasSubstr("Disk")) << trap.name;
  }
}

// The line of an output that says why the log was not read.
std::string NotReadLine(const std::string& out) {
  const std::size_t begin = out.find("RAID manager log not read");
  return begin == out.npos ? "" : out.substr(begin, out.find('\n', begin) - begin);
}

TEST(InputFiles, AReplayRefusesARefusedRaidManagersLogWithTheSameWords) {
  const RaidLogSetting setting("raid-manager\\");
  for (const Trap& trap : kTraps) {
    const MachineCopy machine;
    ReplaceRaidLog(machine, trap);
    const std::string bundle = machine.Directory() + "/r.bundle";
    const ProgramResult live = RunWithinBounds({"health", "--directory", machine.Directory(), "--record", bundle});
    const ProgramResult replayed = RunWithinBounds({"health", "--replay", bundle});
    EXPECT_NE(NotReadLine(live.out), "") << trap.name << live.out;
    EXPECT_EQ(NotReadLine(replayed.out), NotReadLine(live.out)) << trap.name;
    const std::string again = machine.Directory() + "/again.bundle";
    RunWithinBounds({"health", "--replay", bundle, "--record", again});
    EXPECT_EQ(NotReadLine(RunWithinBounds({"health", "--replay", again}).out), NotReadLine(live.out)) << trap.name;
  }
}

TEST(InputFiles, ThatAreNotOrdinaryAreRefusedInOneLineByEveryCommand) {
  for (const Trap& trap : kTraps) {
    const TemporaryFolder folder;
    const std::string named = Utf8FromPath(folder.Path() / "named");
    trap.make(named);
    const std::string result = Utf8FromPath(
        folder.Write("r.json", R"({"format": 1, "machine": "M", "queries": [{"instances": [], "log": []}]})"));
    const Texts commands[] = {
        {"status", "--replay", named },
        {"query",  "--replay", named },
        {"diff",   named,      result},
        {"diff",   result,     named },
        {"bundle", "list",     named },
        {"bundle", "show",     named },
        {"bundle", "mask",     named,  "masked"},
        {"query",        "--plugin",            named},
    };
    for (const Texts& arguments : commands) {
      const ProgramResult refused = RunWithinBounds(arguments);
      EXPECT_THAT(refused.exitStatus, AllOf(testing::Ge(2), Not(kOutOfTime)))
          << arguments[0] << " of " << trap.name << refused.out;
      EXPECT_EQ(std::ranges::count(refused.err, '\n'), 1) << arguments[0] << " of " << trap.name << refused.err;
      EXPECT_THAT(refused.err, HasSubstr("named")) << arguments[0] << " of " << trap.name;
    }
  }
}

TEST(InputFiles, AreReadUpToALimitThatAnOptionSets) {
  const TemporaryFolder folder;
  const fs::path large = folder.Write("large", "");
  const fs::path larger = folder.Write("larger", "");
  constexpr std::uintmax_t kMiB = 1 << 20U;
  fs::resize_file(large, 2 * kMiB);
  fs::resize_file(larger, 256 * kMiB + 1);
  for (const Texts& command : {
           Texts{"query",  "--replay"},
           Texts{"bundle", "list"    },
           Texts{"diff",   "none"    }
  }) {
    const auto complaint = [&command](const fs::path& file, const Texts& options) {
      Texts arguments = command;
      if (arguments.back() == "none") arguments.back() = Utf8FromPath(file);
      arguments.push_back(Utf8FromPath(file));
      arguments.insert(arguments.end(), options.begin(), options.end());
      return RunWithinBounds(arguments).err;
    };
    EXPECT_THAT(complaint(larger, {}), HasSubstr("is larger than 256 MiB: allow more with --input-limit."));
    EXPECT_THAT(complaint(large, {"--input-limit", "1"}), HasSubstr("is larger than 1 MiB: allow more"));
    EXPECT_THAT(complaint(large, {"--input-limit", "2"}), Not(HasSubstr("MiB")));
  }
}

TEST(InputFiles, ARaidManagersLogAboveTheLimitIsNamedAndTheRestIsShown) {
  const RaidLogSetting setting("raid-manager\\");
  const MachineCopy machine;
  const fs::path log = fs::path(machine.Directory()) / "raid-manager/KVR/Zentraxis Manager/RaidEvtA.log";
  fs::resize_file(log, (1U << 20U) + 1);
  const Texts status = {"status", "--directory", machine.Directory(), "--width", "200", "--input-limit"};
  for (const auto& [limit, isNamed] : {std::pair("1", true), std::pair("2", false)}) {
    Texts arguments = status;
    arguments.emplace_back(limit);
    const ProgramResult result = RunWithinBounds(arguments);
    EXPECT_EQ(result.exitStatus, 0) << result.err;
    EXPECT_EQ(result.out.find("RAID manager log not read") != result.out.npos, isNamed) << result.out;
  }
}

TEST(InputFiles, ABundleGoesThroughAPipe) {
  const RaidLogSetting setting("raid-manager\\");
  const std::string machine = Utf8FromPath(SampleMachine());
  const Texts common = {"--machine-name", "M", "--local-time", "20261121093000.000000+060"};
  Texts arguments = {"--directory", machine};
  arguments.insert(arguments.end(), common.begin(), common.end());
  const ProgramResult piped = RunFromShell("\"$0\" query --record - \"$@\" | \"$0\" status --replay -", arguments);
  EXPECT_EQ(piped.exitStatus, 0) << piped.err;
  EXPECT_EQ(piped.err, "");
  const ProgramResult replayed = RunHxahost({"status", "--replay", RecordedSampleMachine(), "--machine-name", "M"});
  EXPECT_EQ(piped.out, replayed.out);
}

TEST(InputFiles, AStreamIsReadUpToTheLimit) {
  const ProgramResult endless = RunFromShell("head -c 200000000 /dev/zero | timeout 60 \"$0\" \"$@\"",
                                             {"query", "--replay", "-", "--input-limit", "3"});
  EXPECT_EQ(endless.exitStatus, 2);
  EXPECT_EQ(endless.err, "hxahost: Standard input is larger than 3 MiB: allow more with --input-limit.\n");
  const ProgramResult other = RunFromShell("echo no bundle | \"$0\" \"$@\"", {"query", "--replay", "-"});
  EXPECT_EQ(other.exitStatus, 2);
  EXPECT_THAT(other.err, HasSubstr("Standard input is no bundle"));
}

}  // namespace
