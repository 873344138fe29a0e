// "hxahost diff" on results of the sample machine: unchanged, with a failed disk and with a removed one.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/machine_copy.h"

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::StartsWith;

class Diff : public testing::Test {
 protected:
  // Writes the result of the machine and returns the file's name.
  std::string Collect(const std::string& directory, const std::string& name) const {
    const std::string file = Utf8(name);
    const ProgramResult result =
        RunHxahost({"query", "--format", "json", "--directory", directory, "--output", file, "--machine-name", "M"});
    EXPECT_EQ(result.exitStatus, 0) << result.err;
    return file;
  }
  std::string Utf8(const std::string& name) const { return hxahost::Utf8FromPath(folder_.Path() / name); }

  TemporaryFolder folder_;
};

TEST_F(Diff, EndsWithStatus0IfOnlyTimesDiffer) {
  const std::string first = Collect(hxahost::Utf8FromPath(SampleMachine()), "1.json");
  const std::string second = Collect(hxahost::Utf8FromPath(SampleMachine()), "2.json");
  const ProgramResult result = RunHxahost({"diff", first, second});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_THAT(result.out, HasSubstr(" (M): no difference.\n"));
}

TEST_F(Diff, ShowsAFailedDiskAndALostOneFirst) {
  const MachineCopy machine;
  const std::string before = Collect(machine.Directory(), "1.json");
  machine.Replace("arcconf/1/getconfig-al", "State                              : Online",
                  "State                              : Failed");
  std::string text = machine.Answer("qcmdrun/1/getconfig-al");
  const std::size_t disk = text.find("      Target on SCSI ID 5");
  text.erase(disk, text.find("   Channel #2:") - disk);
  machine.SetAnswer("qcmdrun/1/getconfig-al", text);
  const std::string after = Collect(machine.Directory(), "2.json");

  const ProgramResult shown = RunHxahost({"diff", before, after});
  EXPECT_EQ(shown.exitStatus, 1);
  EXPECT_THAT(shown.out,
              HasSubstr(":\n\nHealth findings: 1\n  + critical: Hard drive at channel 0, ID 0 of controller 4 "
                        "[C4 CH0 I00:Controller: Device #0]: State \"Failed\": Replace the disk: it has failed\n"
                        "\nDisappeared: 1\n  - C1 channel 1, ID 5, S/N H8B01290\n"
                        "\nStates that changed: 1\n  ! C4 enclosure 0, slot 0: State \"Online\" -> \"Failed\"\n"));

  const std::string verbose = RunHxahost({"diff", "--verbose", before, after}).out;
  EXPECT_THAT(verbose, HasSubstr("\nDisappeared: 2\n  - KVRSG_zxDiskDrive.CreationClassName=\"KVRSG_zxDiskDrive\","
                                 "DeviceID=\"C1 CH1 I05:TALVERA T36LW10 S96H8B01290\","
                                 "SystemCreationClassName=\"KVRSG_ComputerSystem\",SystemName=\"M\"\n"
                                 "  - KVRSG_zxDiskDriveVersion."));
  EXPECT_THAT(verbose, HasSubstr("\n\nStates that changed: 1\n  ! KVRSG_zxDiskDrive."));
  EXPECT_THAT(verbose, HasSubstr("  ! zenx//qcmdrun.exe getconfig 1 al: lines gone 8, new 0\n"));

  const Json json = Json::parse(RunHxahost({"diff", "--format", "json", before, after}).out);
  EXPECT_EQ(json["format"], 1);
  EXPECT_EQ(json["same"], false);
  EXPECT_EQ(json["old"]["machine"], "M");
  EXPECT_EQ(json["findings"].size(), 1U);
  EXPECT_EQ(json["findings"][0]["new"]["identifier"], "C4 CH0 I00:Controller: Device #0");
  EXPECT_EQ(json["changes"][0]["kind"], "disappeared");
  EXPECT_EQ(json["changes"][2]["group"], "state");
  EXPECT_EQ(json["changes"][2]["old"], "Online");
  EXPECT_EQ(json["changes"][2]["new"], "Failed");
  EXPECT_EQ(json["rawTexts"].size(), 2U);
}

TEST_F(Diff, EndsWithStatus2AndOneLineIfTheComparisonFails) {
  const std::string foreign = hxahost::Utf8FromPath(folder_.Write("foreign.json", "{\"format\": \"other\"}"));
  const std::string damaged = hxahost::Utf8FromPath(folder_.Write("damaged.json", "{\"format\": 1, "));
  struct Case {
    const char* name;
    std::vector<std::string> arguments;
    const char* says;
  };
  const Case cases[] = {
      {"no file",        {"diff"},                                       "hxahost diff --help"        },
      {"one file",       {"diff", foreign},                              "hxahost diff --help"        },
      {"three files",    {"diff", foreign, foreign, foreign},            "hxahost diff --help"        },
      {"a missing file", {"diff", Utf8("missing.json"), foreign},        "missing.json cannot be read"},
      {"a foreign file", {"diff", foreign, foreign},                     "foreign.json is no result"  },
      {"a damaged file", {"diff", damaged, foreign},                     "damaged.json is no result"  },
      {"a wrong format", {"diff", "--format", "html", foreign, foreign}, "give text or json"          },
      {"an empty name",  {"diff", "", foreign},                          "give a value"               },
  };
  for (const Case& each : cases) {
    const ProgramResult result = RunHxahost(each.arguments);
    EXPECT_EQ(result.exitStatus, 2) << each.name;
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << each.name << ": " << result.err;
    EXPECT_THAT(result.err, StartsWith("hxahost: ")) << each.name;
    EXPECT_THAT(result.err, HasSubstr(each.says)) << each.name;
  }
}

// The output of a utility is limited; the result of a bundle is not.
TEST_F(Diff, TakesABundleWhoseResultIsLongerThanAnyUtilityMayPrint) {
  hxahost::Bundle bundle = hxahost::ReadBundleFile(RecordedSampleMachine());
  const auto logs = std::ranges::find_if(bundle.runs, [](const hxahost::RecordedRun& run) {
    return hxahost::CommandText(run).find("uart") != std::string::npos;
  });
  ASSERT_NE(logs, bundle.runs.end());
  const std::string line = std::string(999, '\x01') + '\n';  // six bytes each in JSON
  for (int count = 0; count < 12000; ++count) logs->result.output += line;
  folder_.Write("large.bundle", hxahost::WriteBundle(bundle));
  const ProgramResult result = RunHxahost({"diff", RecordedSampleMachine(), Utf8("large.bundle")});
  EXPECT_LE(result.exitStatus, 1);
  EXPECT_EQ(result.err, "");
}

}  // namespace
