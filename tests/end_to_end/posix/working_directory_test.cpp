// Working directories that were deleted, that are read-only, and that have no room.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include <unistd.h>

#include "tests/support/hxahost_run.h"
#include "tests/support/machine_copy.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const std::vector<std::string> kFixed = {
    "query", "--format", "json", "--machine-name", "M", "--local-time", "20260305123015.250000+060"};

TEST(WorkingDirectory, ToolsThatDisappearDuringTheCollectionAreUnknownAlsoInAReplay) {
  const MachineCopy machine;
  machine.RemoveTool("qcmdrun");
  machine.SetTool("hrconf_64", "#!/bin/sh\nrm -f zenx/arcconf.exe\necho 'Controllers found: 0'\n");
  const std::string bundle = (fs::path(machine.Directory()) / "m.bundle").string();
  const ProgramResult result = RunHxahost({"health", "--directory", machine.Directory(), "--record", bundle});
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, HasSubstr("arcconf not started: \"zenx//arcconf.exe\" cannot be started"));
  EXPECT_THAT(result.out, HasSubstr("qcmdrun is not installed"));
  EXPECT_EQ(RunHxahost({"health", "--replay", bundle}).exitStatus, 3);
}

// The result for a machine in this folder, if nothing is wrong.
std::string GoodResult(const MachineCopy& machine) {
  return RunFromShell("cd '" + machine.Directory() + "' && exec \"$0\" \"$@\"", kFixed).out;
}

TEST(TemporaryFolders, ThatAreMissingAreReportedWithAdvice) {
  const ProgramResult result =
      RunFromShell("TMPDIR=/nothing exec \"$0\" \"$@\"", {"diff", RecordedSampleMachine(), RecordedSampleMachine()});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
  EXPECT_THAT(result.err, HasSubstr("set TMPDIR"));
}

TEST(WorkingDirectory, ThatWasDeletedIsReportedInOneLine) {
  const TemporaryFolder folder;
  const std::string place = (folder.Path() / "gone").string();
  const std::string goneThen =
      "mkdir '" + place + "' && cd '" + place + "' && rmdir '" + place + "' && exec \"$0\" \"$@\"";
  struct Case {
    const char* name;
    std::vector<std::string> arguments;
    int exitStatus;
  };
  const Case cases[] = {
      {"query",           {"query"},                                        1},
      {"relative output", {"query", "--output", "out.json"},                1},
      {"other directory", {"query", "--directory", folder.Path().string()}, 1},
      {"health",          {"health"},                                       3},
  };
  for (const Case& each : cases) {
    const ProgramResult result = RunFromShell(goneThen, each.arguments);
    EXPECT_EQ(result.exitStatus, each.exitStatus) << each.name;
    EXPECT_EQ(result.out, "") << each.name;
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << each.name << ": " << result.err;
    EXPECT_THAT(result.err, HasSubstr("The working directory is gone")) << each.name;
  }
}

TEST(WorkingDirectory, ThatGoesWhileToolsRunEndsInToolsThatCannotBeStarted) {
  const MachineCopy machine;
  machine.SetTool("qcmdrun", "#!/bin/sh\nrm -rf '" + machine.Directory() + "'/zenx\necho gone\n");
  const ProgramResult result = RunFromShell("cd '" + machine.Directory() + "' && exec \"$0\" \"$@\"", kFixed);
  EXPECT_EQ(result.exitStatus, 4) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\\\"zenx//arcconf.exe\\\" cannot be started: No such file or directory"));
}

// Root may write everywhere: the capabilities for that are removed before the program starts.
TEST(WorkingDirectory, ThatIsReadOnlyIsEnough) {
  const MachineCopy machine;
  const std::string expected = GoodResult(machine);
  const std::string take = geteuid() == 0 ? "setpriv --bounding-set=-dac_override,-dac_read_search " : "";
  const std::string where = "cd '" + machine.Directory() + "' && ";
  const ProgramResult result = RunFromShell(where + "chmod -R a-w . && exec " + take + "\"$0\" \"$@\"", kFixed);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, expected);

  std::vector<std::string> withOutput = kFixed;
  withOutput.insert(withOutput.end(), {"--output", "out.json"});
  const ProgramResult refused = RunFromShell(where + "exec " + take + "\"$0\" \"$@\"", withOutput);
  EXPECT_EQ(refused.exitStatus, 2);
  EXPECT_EQ(std::ranges::count(refused.err, '\n'), 1) << refused.err;
  EXPECT_THAT(refused.err, HasSubstr("--output"));
  EXPECT_FALSE(fs::exists(fs::path(machine.Directory()) / "out.json"));
  EXPECT_EQ(RunFromShell("chmod -R u+w '" + machine.Directory() + "'", {}).exitStatus, 0);
}

// The program and the tools cannot write a byte to a file; counts of lines go to a folder of their own.
TEST(WorkingDirectory, WithoutAnyRoomIsEnough) {
  const MachineCopy machine;
  const TemporaryFolder counts;
  const std::string expected = GoodResult(machine);
  const ProgramResult result = RunFromShell("set -o pipefail; cd '" + machine.Directory() +
                                                "' && (export GCOV_PREFIX='" + counts.Path().string() +
                                                "'; trap '' XFSZ; "
                                                "ulimit -f 0; exec \"$0\" \"$@\") | (cat)",
                                            kFixed);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, expected);
}

}  // namespace
