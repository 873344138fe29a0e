// Disks without room: "/dev/full" is always full, and a limit on the size of files acts like a disk that fills up.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::HasSubstr;
using Texts = std::vector<std::string>;

void ExpectOneLineAboutRoom(const ProgramResult& result, const char* command) {
  EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << command << ": " << result.err;
  EXPECT_THAT(result.err, testing::StartsWith("hxahost: ")) << command;
  EXPECT_THAT(result.err, HasSubstr("room")) << command;
}

struct Case {
  const char* name;
  Texts arguments;
  int exitStatus;
};

TEST(FullDisk, IsReportedByEveryCommandThatWritesToStandardOutput) {
  const TemporaryFolder folder;
  const std::string result = Utf8FromPath(
      folder.Write("r.json", R"({"format": 1, "machine": "M", "queries": [{"instances": [], "log": []}]})"));
  const std::string empty = Utf8FromPath(folder.Path());
  const Case cases[] = {
      {"tables",     {"query", "--directory", empty},                     1},
      {"JSON",       {"query", "--directory", empty, "--format", "json"}, 1},
      {"the page",   {"query", "--directory", empty, "--format", "html"}, 1},
      {"health",     {"health", "--directory", empty},                    3},
      {"rules",      {"health", "--rules"},                               3},
      {"difference", {"diff", result, result},                            2},
      {"classes",    {"classes"},                                         1},
      {"schema",     {"schema"},                                          1},
      {"help",       {"--help"},                                          1},
  };
  for (const Case& each : cases) {
    const ProgramResult shown = RunFromShell("exec \"$0\" \"$@\" > /dev/full", each.arguments);
    EXPECT_EQ(shown.exitStatus, each.exitStatus) << each.name;
    ExpectOneLineAboutRoom(shown, each.name);
  }
}

TEST(FullDisk, IsReportedForFilesThatOptionsName) {
  const TemporaryFolder folder;
  const std::string empty = Utf8FromPath(folder.Path());
  const Case cases[] = {
      {"tables",   {"query", "--directory", empty, "--output", "/dev/full"},                              1},
      {"JSON",     {"query", "--directory", empty, "--output", "/dev/full", "--format", "json"},          1},
      {"the page", {"query", "--directory", empty, "--output", "/dev/full", "--format", "html"},          1},
      {"log",      {"query", "--directory", empty, "--log", "/dev/full", "--class", "KVRSG_zxDiskDrive"}, 1},
      {"health",   {"health", "--directory", empty, "--output", "/dev/full"},                             3},
      {"metrics",  {"health", "--directory", empty, "--output", "/dev/full", "--format", "prometheus"},   3},
  };
  for (const Case& each : cases) {
    const ProgramResult shown = RunHxahost(each.arguments);
    EXPECT_EQ(shown.exitStatus, each.exitStatus) << each.name;
    ExpectOneLineAboutRoom(shown, each.name);
  }
}

// The limit is 4 blocks of 1024 bytes, less than the output. If the signal is ignored, the write fails, as on a full
// disk. Counts of lines go to a folder of their own, as they would be written partly.
TEST(FullDisk, LeavesTheGoodResultThatWasThereBefore) {
  const std::string machine = Utf8FromPath(SampleMachine());
  const Case cases[] = {
      {"tables",   {"query", "--directory", machine},                            1},
      {"JSON",     {"query", "--directory", machine, "--format", "json"},        1},
      {"the page", {"query", "--directory", machine, "--format", "html"},        1},
      {"health",   {"health", "--directory", machine, "--format", "json"},       3},
      {"metrics",  {"health", "--directory", machine, "--format", "prometheus"}, 3},
  };
  for (const Case& each : cases) {
    const TemporaryFolder folder;
    const TemporaryFolder counts;
    const fs::path file = folder.Write("out", "good");
    Texts arguments = each.arguments;
    arguments.insert(arguments.end(), {"--output", Utf8FromPath(file)});
    const ProgramResult shown = RunFromShell(
        "export GCOV_PREFIX='" + Utf8FromPath(counts.Path()) + "'; trap '' XFSZ; ulimit -f 4; exec \"$0\" \"$@\"",
        arguments);
    EXPECT_EQ(shown.exitStatus, each.exitStatus) << each.name;
    ExpectOneLineAboutRoom(shown, each.name);
    EXPECT_EQ(FileText(file), "good") << each.name;
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1) << each.name;
  }
}

}  // namespace
