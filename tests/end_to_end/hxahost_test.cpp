#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxacore/schema.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/system/folder_lock.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr int kNothingFound = 4;
constexpr int kBusy = 5;

// A machine without any tool.
class Hxahost : public testing::Test {
 protected:
  ProgramResult Query(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"query", "--directory", Utf8FromPath(folder_.Path())});
    return RunHxahost(arguments);
  }

  std::string InFolder(const std::string& name) const { return Utf8FromPath(folder_.Path() / name); }

  std::vector<std::string> FilesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) {
      names.push_back(Utf8FromPath(entry.path().filename()));
    }
    std::ranges::sort(names);
    return names;
  }

  TemporaryFolder folder_;
};

// One line: the fault and what to do.
void ExpectOneLine(const std::string& err) {
  EXPECT_EQ(std::ranges::count(err, '\n'), 1) << err;
  EXPECT_THAT(err, StartsWith("hxahost: "));
}

TEST_F(Hxahost, EndsWithStatus3WhenThePluginCannotBeLoaded) {
  WriteFileText(InFolder("text.pi"), "no library");
  const fs::path bin = hxahost::ProgramFolder();
  const fs::path core = fs::exists(bin / "hxacore.dll") ? bin / "hxacore.dll" : bin / "libhxacore.so";
  struct Case {
    const char* name;
    std::string plugin;
    const char* says;
  };
  const Case cases[] = {
      {"missing",                        InFolder("missing.pi"), "is missing"        },
      {"no library",                     InFolder("text.pi"),    "cannot be loaded"  },
      {"library that registers nothing", Utf8FromPath(core),     "registered nothing"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const ProgramResult result = Query({"--plugin", each.plugin, "--output", InFolder("out.json")});
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.out, "");
    ExpectOneLine(result.err);
    EXPECT_THAT(result.err, HasSubstr(each.says));
    EXPECT_THAT(result.err, HasSubstr("--plugin"));
  }
  EXPECT_THAT(FilesInFolder(), testing::ElementsAre("text.pi")) << "no output, and no half of one";
}

TEST_F(Hxahost, FindsThePluginBesideItselfForAnyFolderOfTools) {
  EXPECT_EQ(Query({}).exitStatus, kNothingFound);
  EXPECT_EQ(Query({"--plugin", Utf8FromPath(hxahost::ProgramFolder() / "zenx.pi")}).exitStatus, kNothingFound);
}

TEST_F(Hxahost, ListsTheClassesAndTheirMof) {
  const ProgramResult classes = RunHxahost({"classes"});
  EXPECT_EQ(classes.exitStatus, 0);
  EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(classes.out, '\n')), NKVRHXA20::PublishedClasses().size());
  EXPECT_THAT(classes.out, StartsWith("KVRSG_zxManagerRawData "));

  const ProgramResult schema = RunHxahost({"schema"});
  EXPECT_EQ(schema.exitStatus, 0);
  EXPECT_THAT(schema.out, HasSubstr("\nclass KVRSG_zxLogicalDisk {\n"));
}

TEST_F(Hxahost, ShowsEveryClassThatWasAskedForUnderItsDeclaredName) {
  const ProgramResult result = Query({"--class", "kvrsg_DISKGROUP", "--class", "KVRSG_zxLogicalDisk", "--machine-name",
                                      "K\xc3\xa4se 1", "--local-time", "20260305123015.250000+060"});
  EXPECT_EQ(result.exitStatus, kNothingFound);
  EXPECT_THAT(result.out, StartsWith("RAID controllers of K\xc3\xa4se 1 on 2026-03-05 12:30:15 +01:00, collected in "));
  EXPECT_THAT(result.out, HasSubstr("  Class asked for      Instances\n"
                                    "  KVRSG_DiskGroup      0\n"
                                    "  KVRSG_zxLogicalDisk  0\n"));
  EXPECT_THAT(result.out, HasSubstr("Nothing was found"));
  ExpectOneLine(result.err);  // standard error is not a terminal here, so no progress is shown
}

TEST_F(Hxahost, FindsNothingWithoutTheFolderOfToolsAndNamesTheTools) {
  const ProgramResult result = Query({"--format", "json"});
  EXPECT_EQ(result.exitStatus, kNothingFound);
  std::string line = result.err;
  std::erase(line, '\r');  // of the line's end on Windows
  EXPECT_EQ(line,
            "hxahost: No tool answered: qcmdrun not installed, hrconf_64 not installed, arcconf not installed. Tools "
            "belong into a folder zenx; name the folder above it with --directory.\n");
  const auto query = nlohmann::json::parse(result.out)["queries"][0];
  for (const auto& instance : query["instances"]) {
    EXPECT_EQ(instance["class"], "KVRSG_zxRawData") << "commands that failed, and nothing else";
  }
  const ProgramResult tables = Query({});
  EXPECT_EQ(tables.exitStatus, kNothingFound);
  for (const char* const tool : {"zenx//qcmdrun.exe", "zenx//arcconf.exe"}) {
    EXPECT_TRUE(std::ranges::any_of(query["log"], [tool](const auto& entry) {
      return entry["text"].template get<std::string>().find(tool) != std::string::npos;
    })) << tool;
    EXPECT_THAT(tables.out, HasSubstr("\"" + std::string(tool) + "\" cannot be started"));
  }
}

TEST_F(Hxahost, WritesTheSameBytesToAFileAsToStandardOutput) {
  const std::vector<std::string> fixed = {"--machine-name", "M",   "--local-time", "20260305123015.250000+060",
                                          "--format",       "json"};
  std::vector<std::string> withOutput = fixed;
  withOutput.insert(withOutput.end(), {"--output", InFolder("out.txt"), "--log", InFolder("log.txt")});
  const ProgramResult shown = Query(fixed);
  const ProgramResult written = Query(withOutput);
  EXPECT_EQ(written.exitStatus, kNothingFound);
  EXPECT_EQ(written.out, "");
  EXPECT_EQ(FileText(InFolder("out.txt")), shown.out);
  EXPECT_THAT(shown.out, Not(HasSubstr("\r")));
  EXPECT_THAT(FilesInFolder(), testing::ElementsAre("log.txt", "out.txt"));
}

TEST_F(Hxahost, NamesTheClassesThatMustComeBefore) {
  const ProgramResult result = Query({"--class", "KVRSG_zxBiosOnController"});
  EXPECT_EQ(result.exitStatus, kNothingFound);
  EXPECT_THAT(result.err, HasSubstr("--class KVRSG_zxSCSIProtocolController --class KVRSG_zxBiosVersion before it"));
}

TEST_F(Hxahost, WaitsForAnotherCollectionInTheSameFolderAndReportsIt) {
  fs::create_directory(folder_.Path() / "zenx");
  const std::vector<std::string> arguments = {"query", "--directory", Utf8FromPath(folder_.Path())};
  auto other = std::make_unique<hxahost::FolderLock>(folder_.Path() / "zenx");
  ASSERT_TRUE(other->Take());
  RunningProgram waiting(HxahostPath(), arguments);
  EXPECT_TRUE(waiting.SaysOnStandardError("waiting"));
  other.reset();
  const ProgramResult result = waiting.Wait();
  EXPECT_EQ(result.exitStatus, kNothingFound);
  EXPECT_EQ(std::ranges::count(result.err, '\n'), 2) << result.err;
  EXPECT_THAT(result.out, HasSubstr("Nothing was found"));
}

TEST_F(Hxahost, EndsWithStatus5WhereAnotherCollectionGoesOnAndNamesIt) {
  fs::create_directory(folder_.Path() / "zenx");
  hxahost::FolderLock other(folder_.Path() / "zenx");
  ASSERT_TRUE(other.Take());
  for (const std::string wait : {"--no-wait", "--wait=1"}) {
    const ProgramResult result = Query({wait});
    EXPECT_EQ(result.exitStatus, kBusy);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(std::ranges::count(result.err, '\n'), wait == "--no-wait" ? 1 : 2) << result.err;
    std::smatch holder;
    // Linux keeps the first 15 characters of a name.
    const std::regex pattern(
        "Nothing was collected: another program collects from this folder zenx "
        "\\(end_to_end_tests?, process ([0-9]+), since [0-9]{4}-[0-9]{2}-[0-9]{2} "
        "[0-9]{2}:[0-9]{2}:[0-9]{2} ([+-][0-9]{2}:[0-9]{2})\\)\\. Try again later");
    ASSERT_TRUE(std::regex_search(result.err, holder, pattern)) << result.err;
    EXPECT_THAT(ProcessesOf(ProgramFolder()), testing::Contains(std::stoul(holder[1])));
    const std::string now = hxahost::ReadableTime(NKVRHXA20::CurrentServices().localTime().ToString());
    EXPECT_THAT(now, testing::EndsWith(holder[2].str()));
  }
  EXPECT_EQ(RunHxahost({"health", "--no-wait", "--directory", Utf8FromPath(folder_.Path())}).exitStatus, 3);
}

TEST_F(Hxahost, BeginsToCountItsDeadlineWhenTheWaitIsOver) {
  fs::create_directory(folder_.Path() / "zenx");
  auto other = std::make_unique<hxahost::FolderLock>(folder_.Path() / "zenx");
  ASSERT_TRUE(other->Take());
  RunningProgram waiting(HxahostPath(), {"status", "--deadline", "5", "--directory", Utf8FromPath(folder_.Path())});
  EXPECT_TRUE(waiting.SaysOnStandardError("waiting"));
  std::this_thread::sleep_for(std::chrono::seconds(6));
  other.reset();
  EXPECT_THAT(waiting.Wait().out, AllOf(HasSubstr("not installed"), Not(HasSubstr("not asked"))));
}

TEST_F(Hxahost, LeavesNothingInTheFolderOfTheTools) {
  fs::create_directory(folder_.Path() / "zenx");
  EXPECT_EQ(Query({}).exitStatus, kNothingFound);
  EXPECT_TRUE(fs::is_empty(folder_.Path() / "zenx"));
  EXPECT_THAT(Query({}).err, Not(HasSubstr("waiting"))) << "the lock ended with its program";
}

}  // namespace
