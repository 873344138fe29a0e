// "hxahost health" as people and monitoring programs run it: the real program with real processes, on the sample
// machine and on copies of it in which something was mended or broken.

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/same_lines.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// A copy of the sample machine, to be changed.
class Health : public testing::Test {
 protected:
  Health() { fs::copy(SampleMachine(), Machine(), fs::copy_options::recursive); }

  fs::path Machine() const { return folder_.Path() / "machine"; }
  fs::path Answers() const { return Machine() / "zenx" / "answers"; }

  ProgramResult Run(std::vector<std::string> further = {}) const {
    std::vector<std::string> arguments = {"health", "--directory", Utf8FromPath(Machine()), "--machine-name", "HOST"};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return RunHxahost(arguments);
  }

  // Leaves one utility with controllers: the others answer that they have none.
  void LeaveOnly(const std::string& tool) const {
    for (const char* const each : {"qcmdrun", "arcconf", "hrconf_64"}) {
      if (each == tool) continue;
      for (const auto& entry : fs::directory_iterator(Answers() / each)) fs::remove_all(entry.path());
      WriteFileText(Answers() / each / "other.txt", std::string(each) == "qcmdrun"
                                                        ? "Found 0 KVR Zentraxis controller(s)\n"
                                                        : "Controllers found: 0\n");
    }
  }

  void Replace(const fs::path& answer, const std::string& before, const std::string& after) const {
    std::string text = FileText(Answers() / answer);
    const std::size_t place = text.find(before);
    ASSERT_NE(place, text.npos) << before;
    text.replace(place, before.size(), after);
    WriteFileText(Answers() / answer, text);
  }

  TemporaryFolder folder_;
};

TEST_F(Health, OfTheSampleMachineIsCritical) {
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(result.out,
              AllOf(StartsWith("CRITICAL: "), HasSubstr("[Zentraxis1LD3]: LogicalDriveStatus \"Critical (CRT)\""),
                    HasSubstr("[Zentraxis3LD2]: LogicalDriveStatus \"Offline (OFL)\""),
                    HasSubstr("[Zentraxis4LD3]: LogicalDriveStatus \"Degraded\""),
                    HasSubstr("State \"Defunct hot-spare (DHS)\""), HasSubstr("State \"Rebuild (RBL)\""),
                    HasSubstr("NumBadStripes \"3\""), Not(HasSubstr("unknown:"))));
}

TEST_F(Health, IsFineWhereOneUtilityShowsAControllerInOrder) {
  LeaveOnly("hrconf_64");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.out, "OK: nothing is wrong on HOST (1 controller, 2 logical drives, 6 devices)\n");
}

TEST_F(Health, IsFineWhereEachUtilitySaysThatThereIsNoController) {
  LeaveOnly("none");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_EQ(result.out, "OK: no controller on HOST: qcmdrun, hrconf_64, arcconf answered that there is none\n");
}

TEST_F(Health, IsAWarningWhereADiskPredictsItsFailure) {
  LeaveOnly("hrconf_64");
  Replace("hrconf_64/1/getconfig-al.txt", "PFA                                : No",
          "PFA                                : Yes");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_THAT(result.out, StartsWith("WARNING: 1 warning on HOST"));
}

TEST_F(Health, IsUnknownWhereAStateIsUnheardOf) {
  LeaveOnly("hrconf_64");
  Replace("hrconf_64/1/getconfig-al.txt", "Status of logical drive                  : Okay",
          "Status of logical drive                  : Bewildered");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, AllOf(StartsWith("UNKNOWN: 1 unknown on HOST"), HasSubstr("\"Bewildered\"")));
}

TEST_F(Health, IsCriticalWhereAFailedControllerIsLeftOut) {
  LeaveOnly("hrconf_64");
  Replace("hrconf_64/1/getconfig-al.txt", "Controller Status                        : Okay",
          "Controller Status                        : Failed");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_THAT(result.out, HasSubstr("critical: controller 1 [Zentraxis1]: ControllerNum \"Failed\""));
}

TEST_F(Health, IsUnknownWhereAUtilityIsMissing) {
  LeaveOnly("hrconf_64");
  fs::remove(Machine() / "zenx" / "arcconf.exe");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, AllOf(HasSubstr("UNKNOWN: 1 unknown on HOST (1 controller"),
                                HasSubstr("[arcconf]: outcome \"not started")));
}

TEST_F(Health, IsUnknownWhereNoUtilityIsThere) {
  fs::remove_all(Machine() / "zenx");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, StartsWith("UNKNOWN: 3 unknown on HOST (0 controllers, 0 logical drives, 0 devices)\n"));
}

TEST_F(Health, IsUnknownWhereAnAnswerIsCutOff) {
  LeaveOnly("hrconf_64");
  Replace("hrconf_64/1/getconfig-al.txt", "Command completed successfully.", "");
  const ProgramResult result = Run();
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_THAT(result.out, HasSubstr("[hrconf_64]: outcome \"cut off"));
}

TEST_F(Health, IsWrittenToAFileWholeAndAtOnce) {
  const fs::path file = folder_.Path() / "zenx.prom";
  WriteFileText(file, "old");
  const ProgramResult result = Run({"--format", "prometheus", "--output", Utf8FromPath(file)});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(FileText(file), StartsWith("# HELP zenx_health_status "));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()), 2);
}

TEST_F(Health, IsTheSameOnBothSystems) {
  const ProgramResult result = Run({"--format", "json", "--local-time", "20261121093000.000000+060"});
  EXPECT_TRUE(IsGolden("sample-machine-health.json", result.out));
}

TEST_F(Health, EndsWithStatus3AndOneLineForWhateverKeepsItFromItsAnswer) {
  struct Case {
    const char* name;
    std::vector<std::string> arguments;
    const char* says;
  };
  const Case cases[] = {
      {"unknown option",      {"--bogus"},                                                  "--bogus"     },
      {"unknown format",      {"--format", "html"},                                         "text or json"},
      {"option of a query",   {"--repeat", "2"},                                            "--repeat"    },
      {"wrong time",          {"--local-time", "noon"},                                     "--local-time"},
      {"missing plug-in",     {"--plugin", Utf8FromPath(folder_.Path() / "no.pi")},         "no.pi"       },
      {"output in no folder", {"--output", Utf8FromPath(folder_.Path() / "no" / "x.prom")}, "--output"    },
      {"log in no folder",    {"--log", Utf8FromPath(folder_.Path() / "no" / "x.log")},     "--log"       },
      {"empty value",         {"--output", ""},                                             "--output"    },
  };
  for (const Case& each : cases) {
    const ProgramResult result = Run(each.arguments);
    EXPECT_EQ(result.exitStatus, 3) << each.name;
    EXPECT_EQ(result.out, "") << each.name;
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << each.name << ": " << result.err;
    EXPECT_THAT(result.err, AllOf(StartsWith("hxahost: "), HasSubstr(each.says))) << each.name;
  }
}

TEST_F(Health, ShowsItsRulesWithoutRunningATool) {
  fs::remove_all(Machine() / "zenx");
  const ProgramResult result = Run({"--rules"});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_THAT(result.out, HasSubstr("KVRSG_zxDiskDrive, State\n"));
}

}  // namespace
