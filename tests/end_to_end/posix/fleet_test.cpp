// "hxahost fleet" where folders and files cannot be read, and where there is no room for temporary files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <unistd.h>

#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using Texts = std::vector<std::string>;

class FleetOfPoorFiles : public testing::Test {
 protected:
  // The destructor of the folder may be unable to delete what the tests create.
  ~FleetOfPoorFiles() override { RunInFolder("chmod -R u+rwx . ; rm -rf sub", {}); }

  ProgramResult RunInFolder(const std::string& script, const Texts& arguments) const {
    return RunFromShell("cd '" + folder_.Path().string() + "' && " + script, arguments);
  }

  ProgramResult RunFleet(const std::string& script, Texts arguments) const {
    arguments.insert(arguments.begin(), {"fleet", "--local-time", "20261122093000.000000+060", "--width", "1000"});
    return RunInFolder(script, arguments);
  }

  // A result of a machine without controllers.
  void WriteResult(const fs::path& file, const std::string& machine) const {
    folder_.Write(file, R"({"format":1,"machine":")" + machine +
                            R"(","time":"20261121093000.000000+060","queries":[{"instances":[],"log":[]}]})");
  }

  TemporaryFolder folder_;
};

// Without the rights of root, who may read everything.
std::string WithoutPrivileges() {
  const std::string take = geteuid() == 0 ? "setpriv --bounding-set=-dac_override,-dac_read_search " : "";
  return "exec " + take + "\"$0\" \"$@\"";
}

TEST_F(FleetOfPoorFiles, ReadsADeepTreeWithFewDescriptors) {
  WriteResult("r.json", "DEEP");
  const std::string deep = "deep=$(printf 'sub/%.0s' {1..600}); mkdir -p $deep && mv r.json $deep && ";
  const ProgramResult result = RunFleet(deep + "ulimit -n 40 && exec \"$0\" \"$@\"", {"."});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(result.out, AllOf(testing::StartsWith("UNKNOWN  1 machine: 1 unknown\n"), HasSubstr("  DEEP ")));
}

struct ShownCase {
  const char* format;
  const char* says;
};

constexpr ShownCase kShown[] = {
    {"table",      "; 1 damaged file\n"           },
    {"json",       "\"damagedFiles\": ["          },
    {"jsonl",      "\"class\":\"damagedFile\""    },
    {"csv",        ",damagedFile,"                },
    {"prometheus", "\nzenx_fleet_damaged_files 1" },
    {"html",       "1 unknown; 1 damaged file</p>"},
};

TEST_F(FleetOfPoorFiles, NamesAFolderThatItMayNotListInEveryFormat) {
  WriteResult("good.json", "GOOD");
  WriteResult("sub/lost.json", "LOST");
  fs::permissions(folder_.Path() / "sub", fs::perms::none);
  for (const ShownCase& each : kShown) {
    const ProgramResult result = RunFleet(WithoutPrivileges(), {"--format", each.format, "."});
    EXPECT_EQ(result.exitStatus, 0) << each.format << result.err;
    EXPECT_THAT(result.out, AllOf(HasSubstr("GOOD"), HasSubstr(each.says))) << each.format;
    if (std::string(each.format) == "prometheus") continue;  // which has no names of files
    EXPECT_THAT(result.out, HasSubstr("./sub cannot be listed (Permission denied)")) << each.format;
  }
}

TEST_F(FleetOfPoorFiles, NamesAFolderWhosePathIsTooLongAndReadsTheOthers) {
  WriteResult("good.json", "GOOD");
  const std::string name(250, 'n');
  const ProgramResult result =
      RunFleet("(mkdir sub && cd sub && for ((i = 0; i < 20; ++i)); do mkdir " + name + " && cd " + name +
                   "; done; echo > lost.json); mkdir zzz; mv good.json zzz; exec \"$0\" \"$@\"",
               {"."});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(result.out, AllOf(testing::StartsWith("UNKNOWN  1 machine: 1 unknown; 1 damaged file\n"),
                                HasSubstr("(File name too long)"), HasSubstr("  GOOD ")));
}

TEST_F(FleetOfPoorFiles, NamesAPathThatCannotBeExaminedAndReadsTheOthers) {
  WriteResult("good.json", "GOOD");
  WriteResult("sub/lost.json", "LOST");
  fs::permissions(folder_.Path() / "sub", fs::perms::owner_read);
  const std::string tooLong = std::string(300, 'n') + ".json";
  const ProgramResult named = RunFleet(WithoutPrivileges(), {"sub/lost.json", tooLong, "good.json"});
  EXPECT_EQ(named.exitStatus, 0) << named.err;
  EXPECT_THAT(named.out, AllOf(HasSubstr("; 2 damaged files\n"), HasSubstr("  GOOD "),
                               HasSubstr("sub/lost.json cannot be examined (Permission denied)"),
                               HasSubstr("n.json cannot be examined (File name too long)")));
  const ProgramResult found = RunFleet(WithoutPrivileges(), {"."});
  EXPECT_EQ(found.exitStatus, 0) << found.err;
  EXPECT_THAT(found.out, AllOf(HasSubstr("; 1 damaged file\n"), HasSubstr("  GOOD "), HasSubstr("sub/lost.json ")));
  const ProgramResult missing = RunFleet(WithoutPrivileges(), {"good.json", "nowhere.json"});
  EXPECT_EQ(missing.exitStatus, 2);
  EXPECT_EQ(missing.err, "hxahost: nowhere.json is not there: name results, bundles or folders of them.\n");
}

// The memory of the process has nothing at its beginning, so that reading it fails.
TEST_F(FleetOfPoorFiles, NamesAFileThatCannotBeReadAndReadsTheOthers) {
  WriteResult("good.json", "GOOD");
  fs::create_symlink("/proc/self/mem", folder_.Path() / "bad.jsonl");
  const ProgramResult result = RunFleet("exec \"$0\" \"$@\"", {"."});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(result.out, AllOf(HasSubstr("; 1 damaged file\n"), HasSubstr("  GOOD "), HasSubstr("bad.jsonl cannot")));
}

TEST_F(FleetOfPoorFiles, BlamesTheFolderForTemporaryFilesAndNotTheBundle) {
  const std::string bundle = RecordedSampleMachine();
  const std::string missing = (folder_.Path() / "missing").string();
  const ProgramResult without = RunFleet("export TMPDIR='" + missing + "'; exec \"$0\" \"$@\"", {bundle});
  EXPECT_THAT(without.out,
              HasSubstr("the folder for temporary files cannot be used (No such file or directory): set TMPDIR"));
  const std::string here = folder_.Path().string();
  const std::string full = "export TMPDIR='" + here + "' GCOV_PREFIX='" + here + "'; trap '' XFSZ; ulimit -f 4; ";
  const ProgramResult withoutRoom = RunFleet(full + "exec \"$0\" \"$@\"", {bundle});
  EXPECT_THAT(withoutRoom.out, AllOf(HasSubstr("the folder for temporary files " + here + " cannot be used"),
                                     HasSubstr("to a folder with room")));
  EXPECT_THAT(withoutRoom.out, Not(HasSubstr("cannot be replayed")));
}

TEST_F(FleetOfPoorFiles, WritesPagesWithoutAFolderForTemporaryFiles) {
  WriteResult("good.json", "GOOD");
  const ProgramResult result = RunFleet(
      "export TMPDIR='" + folder_.Path().string() + "/missing'; exec \"$0\" \"$@\"",
      {"--format", "html", "--output", "fleet.html", "--pages", "pages", "good.json", RecordedSampleMachine()});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_TRUE(fs::exists(folder_.Path() / "pages" / "machine-GOOD.html"));
}

}  // namespace
