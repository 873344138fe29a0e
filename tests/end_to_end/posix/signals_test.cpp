// Settings that the program inherits from its parent: ignored signals, limits, and closed streams.

#include <csignal>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// A machine whose utilities print a complete report and crash.
class CrashingMachine {
 public:
  CrashingMachine() {
    fs::create_directory(folder_.Path() / "zenx");
    for (const char* const tool : {"qcmdrun", "hrconf_64", "arcconf"}) {
      const fs::path program = folder_.Write(std::string("zenx/") + tool + ".exe",
                                             "#!/bin/sh\necho Controller information\n"
                                             "echo Command completed successfully.\nkill -ABRT $$\n");
      fs::permissions(program, fs::perms::owner_all);
    }
  }
  std::string Path() const { return folder_.Path().string(); }

 private:
  TemporaryFolder folder_;
};

TEST(Signals, CrashesAreReportedIfTheParentIgnoresTheEndsOfItsChildren) {
  const CrashingMachine machine;
  std::signal(SIGCHLD, SIG_IGN);
  RunningProgram program(HxahostPath(), {"query", "--format", "json", "--runs", "--directory", machine.Path()});
  std::signal(SIGCHLD, SIG_DFL);
  const ProgramResult result = program.Wait();
  const auto runs = nlohmann::json::parse(result.out)["queries"][0]["runs"];
  EXPECT_GT(runs.size(), 0U);
  for (const auto& run : runs) EXPECT_EQ(run["failure"], "it was ended by the system: signal 6");
}

// A file that the program opens must not get the number of a closed stream: what goes to the stream would go there.
TEST(Signals, NoFileReceivesWhatGoesToAClosedStream) {
  struct Case {
    const char* closing;
    int exitStatus;
  };
  constexpr Case kCases[] = {
      {"",               0},
      {"0<&-",           0},
      {"1>&-",           1},
      {"2>&-",           0},
      {"0<&- 1>&- 2>&-", 1},
  };
  const TemporaryFolder folder;
  std::string whole;  // the log with all streams open
  for (const auto& [closing, exitStatus] : kCases) {
    SCOPED_TRACE(closing);
    const std::string query = "exec \"$0\" query --replay '" + RecordedSampleMachine() + "' --log '" +
                              (folder.Path() / "log").string() + "' --record '" + (folder.Path() / "b").string() +
                              "' " + closing;
    EXPECT_EQ(RunningProgram("/bin/sh", {"-c", query, HxahostPath().string()}).Wait().exitStatus, exitStatus);
    const std::string log = FileText(folder.Path() / "log");
    if (whole.empty()) whole = log;
    EXPECT_EQ(log, whole);
    EXPECT_EQ(RunHxahost({"bundle", "list", (folder.Path() / "b").string()}).exitStatus, 0);
  }
  EXPECT_FALSE(whole.empty());
}

// The bundle contains the output of the utilities even if nobody reads the result.
TEST(Signals, ABundleIsSavedIfNobodyReadsStandardOutput) {
  const TemporaryFolder folder;
  const fs::path bundle = folder.Path() / "kept.bundle";
  const std::string query = HxahostPath().string() + " query --format json --replay " + RecordedSampleMachine() +
                            " --record " + bundle.string();
  const ProgramResult result = RunningProgram("/bin/sh", {"-c", "(" + query + "; echo $? >&2) | head -c 10"}).Wait();
  EXPECT_THAT(result.err, HasSubstr("Standard output could not be written"));
  EXPECT_TRUE(result.err.ends_with("\n1\n")) << result.err;
  EXPECT_TRUE(fs::exists(bundle));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(Signals, AFileThatMayNotGrowIsAnErrorAndLeavesNoFile) {
  const TemporaryFolder folder;
  const std::string output = (folder.Path() / "out.json").string();
  const std::string query = HxahostPath().string() + " query --format json --replay " + RecordedSampleMachine();
  const ProgramResult result =
      RunningProgram("/bin/sh", {"-c", "ulimit -f 8; exec " + query + " --output " + output}).Wait();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_THAT(result.err, HasSubstr("hxahost: "));
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

}  // namespace
