// "hxahost fleet" on results, lines and bundles of the sample machine and of others.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/machine_answers.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

class FleetCommand : public testing::Test {
 protected:
  // A bundle of a machine of tests/machines with another name, in a file of that name unless another is given.
  void WriteMachine(const std::string& name, const std::string& answers, const std::string& file = "") const {
    hxahost::Bundle bundle =
        BundleOf(ReadMachineAnswers(FileText(SourceFile("tests/machines/" + answers + ".answers").string())));
    bundle.machine = name;
    folder_.Write((file.empty() ? name : file) + ".bundle", WriteBundle(bundle));
  }

  std::string Folder() const { return hxahost::Utf8FromPath(folder_.Path()); }
  std::string File(const std::string& name) const { return hxahost::Utf8FromPath(folder_.Path() / name); }

  ProgramResult Run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"fleet", "--local-time", "20261122093000.000000+060"});
    return RunHxahost(arguments);
  }

  TemporaryFolder folder_;
};

TEST_F(FleetCommand, ShowsTheWorstMachineFirstAndADamagedFileInOneLine) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  WriteMachine("DB02", "arcconf-newer-failed-disk");
  folder_.Write("broken.bundle", FileText(File("DB01.bundle")).substr(0, 1000));
  folder_.Write("broken.json", "{\"format\": 1, ");
  folder_.Write("notes.txt", "nothing of a fleet");
  const ProgramResult result = Run({Folder()});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(result.out, testing::StartsWith("CRITICAL 2 machines: 1 critical, 1 ok; 2 damaged files\n\n"
                                              "  Machine  State     Age   Incidents   Controllers  Drives  Disks"));
  EXPECT_LT(result.out.find("  DB02     critical  24 h  1 critical"), result.out.find("  DB01     ok        24 h "));
  EXPECT_THAT(result.out, HasSubstr("\ncritical DB02: C1 \"Archive\" (RAID 5) is degraded\n         PULL enclosure 0"));
  EXPECT_THAT(result.out, HasSubstr("\nDisks by model and firmware\n"));
  EXPECT_THAT(result.out, HasSubstr("\nControllers by model and firmware\n"));
  EXPECT_THAT(result.out, HasSubstr("\nSerial numbers in more than one machine\n"));
  EXPECT_THAT(result.out, HasSubstr("\nFiles that hold no result\n  " + File("broken.bundle")));
  EXPECT_THAT(result.out, Not(HasSubstr("notes.txt")));
}

TEST_F(FleetCommand, WritesTheSameForBundlesTheirResultsAndTheirLines) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  WriteMachine("DB02", "arcconf-newer-tool-refuses");
  const std::string bundles = Run({Folder()}).out;
  const TemporaryFolder others;
  std::string lines;
  for (const std::string name : {"DB01", "DB02"}) {
    const std::string json = hxahost::Utf8FromPath(others.Path() / (name + ".json"));
    RunHxahost({"query", "--replay", File(name + ".bundle"), "--format", "json", "--runs", "--output", json});
    lines += RunHxahost({"query", "--replay", File(name + ".bundle"), "--format", "jsonl", "--runs"}).out;
  }
  EXPECT_THAT(bundles, HasSubstr("DB02"));
  EXPECT_EQ(Run({hxahost::Utf8FromPath(others.Path())}).out, bundles);
  EXPECT_EQ(Run({hxahost::Utf8FromPath(folder_.Write("all.lines", lines))}).out, bundles);
}

TEST_F(FleetCommand, WritesTheSameDataForPrograms) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  WriteMachine("DB02", "arcconf-newer-failed-disk");
  const Json json = Json::parse(Run({"--format", "json", "--stale", "0", Folder()}).out);
  EXPECT_EQ(json["status"], "critical");
  EXPECT_EQ(json["machines"][0]["machine"], "DB02");
  EXPECT_EQ(json["machines"][0]["ageSeconds"], 86400);
  EXPECT_EQ(json["machines"][1]["isStale"], true);
  EXPECT_EQ(json["machines"][0]["incidents"][0]["urgency"], "replace");
  EXPECT_EQ(json["diskModels"][0]["failed"], 1);
  EXPECT_THAT(Run({"--format", "prometheus", Folder()}).out,
              HasSubstr("\nzenx_fleet_machine_state{machine=\"DB02\"} 2\n"));
  const std::string csv = Run({"--format", "csv", Folder()}).out;
  EXPECT_THAT(csv, testing::StartsWith("machine,time,class,path,level,"));
  EXPECT_THAT(csv, HasSubstr("\r\nDB02,20261121093000.000000+060,machine,DB02,critical,"));
}

TEST_F(FleetCommand, TakesItsOwnLinesAgain) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  WriteMachine("DB02", "arcconf-newer-failed-disk");
  const std::string lines = Run({"--format", "jsonl", Folder()}).out;
  EXPECT_THAT(lines, testing::StartsWith(
                         R"({"machine":"DB01","time":"20261121093000.000000+060","class":"machine","path":"DB01",)"));
  const std::string file = hxahost::Utf8FromPath(folder_.Write("lines.jsonl", lines));
  EXPECT_EQ(Run({file}).out, Run({File("DB01.bundle"), File("DB02.bundle")}).out);
}

// It might replace the result of a machine, and the next fleet would read it.
TEST_F(FleetCommand, WritesNoResultIntoAFolderThatItReads) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  std::filesystem::create_directory(folder_.Path() / "sub");
  for (const char* const name : {"DB01.bundle", "all.jsonl", "sub/all.JSON"}) {
    const std::string before = FileText(folder_.Path() / "DB01.bundle");
    const ProgramResult result = Run({"--format", "json", "--output", File(name), Folder()});
    EXPECT_EQ(result.exitStatus, 2) << name;
    EXPECT_THAT(result.err, HasSubstr("where results are read: name a file in another folder."));
    EXPECT_TRUE(FileText(folder_.Path() / "DB01.bundle") == before);
  }
  EXPECT_EQ(Run({"--format", "csv", "--output", File("all.csv"), Folder()}).exitStatus, 0);
  EXPECT_EQ(Run({"--format", "json", "--output", File("all.json"), File("sub")}).exitStatus, 4);
}

TEST_F(FleetCommand, WritesAPageThatLinksToTheNewestReportOfEachMachine) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  WriteMachine("DB02", "arcconf-newer-failed-disk");
  const ProgramResult result =
      Run({"--format", "html", "--output", File("fleet.html"), "--pages", File("pages"), Folder()});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  const std::string page = FileText(folder_.Path() / "fleet.html");
  EXPECT_THAT(page, HasSubstr("CRITICAL: 2 machines: 1 critical, 1 ok</p>"));
  EXPECT_THAT(page, HasSubstr("<a href=\"pages/machine-DB02.html\">DB02</a>"));
  EXPECT_THAT(FileText(folder_.Path() / "pages" / "machine-DB02.html"), HasSubstr("<h1>RAID report: DB02</h1>"));
  EXPECT_THAT(FileText(folder_.Path() / "pages" / "machine-DB01.html"), HasSubstr("OK: no fault found"));
  EXPECT_THAT(Run({"--pages", File("pages"), Folder()}).err,
              HasSubstr("hxahost: --pages is for what --format html links to: give that, or leave it out."));
}

TEST_F(FleetCommand, RefusesAPageInThePlaceOfAReport) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  const std::string page = File("machine-DB01.html");
  const ProgramResult result = Run({"--format", "html", "--pages", Folder(), "--output", page, Folder()});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_THAT(result.err, HasSubstr("are one file"));
  EXPECT_FALSE(std::filesystem::exists(page));
}

TEST_F(FleetCommand, WritesAPageForAMachineWithALongName) {
  WriteMachine(std::string(240, 'm'), "arcconf-newer-healthy", "long");
  WriteMachine("DB02", "arcconf-newer-failed-disk");
  const ProgramResult result =
      Run({"--format", "html", "--output", File("fleet.html"), "--pages", File("pages"), Folder()});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  std::size_t pages = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.Path() / "pages")) {
    const std::string name = hxahost::Utf8FromPath(entry.path().filename());
    EXPECT_THAT(FileText(folder_.Path() / "fleet.html"), HasSubstr("href=\"pages/" + name + "\""));
    ++pages;
  }
  EXPECT_EQ(pages, 2U);
}

TEST_F(FleetCommand, WritesAPageForAResultWhoseTimeIsInvalid) {
  const std::string file = hxahost::Utf8FromPath(
      folder_.Write("r.json", R"({"format":1,"machine":"DB01","time":"noon","queries":[{"instances":[],"log":[]}]})"));
  const ProgramResult result = Run({"--format", "html", "--output", File("f.html"), "--pages", File("pages"), file});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(FileText(folder_.Path() / "pages" / "machine-DB01.html"), HasSubstr("<h1>RAID report: DB01</h1>"));
}

TEST_F(FleetCommand, SaysWhyTheFolderForPagesCannotBeCreated) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  folder_.Write("pages", "a file");
  const ProgramResult result =
      Run({"--format", "html", "--output", File("fleet.html"), "--pages", File("pages"), File("DB01.bundle")});
  EXPECT_EQ(result.exitStatus, 2);
  EXPECT_THAT(result.err, HasSubstr("hxahost: --pages " + File("pages") +
                                    " cannot be created (Not a directory): name a folder that you may write to."));
}

TEST_F(FleetCommand, CountsACollectionOnceThatAFileContainsTwice) {
  WriteMachine("DB01", "arcconf-newer-healthy");
  const std::string lines = RunHxahost({"query", "--replay", File("DB01.bundle"), "--format", "jsonl", "--runs"}).out;
  const std::string twice = hxahost::Utf8FromPath(folder_.Write("twice.lines", lines + lines));
  EXPECT_EQ(Run({twice}).out, Run({File("DB01.bundle")}).out);
  const ProgramResult page = Run({"--format", "html", "--output", File("f.html"), "--pages", File("pages"), twice});
  EXPECT_EQ(page.exitStatus, 0) << page.err;
  EXPECT_THAT(FileText(folder_.Path() / "pages" / "machine-DB01.html"), HasSubstr("OK: no fault found"));
}

TEST_F(FleetCommand, EndsWithStatus4WithoutMachines) {
  const ProgramResult result = Run({Folder()});
  EXPECT_EQ(result.exitStatus, 4);
  EXPECT_THAT(result.err, HasSubstr("hxahost: No machine was found"));
}

TEST_F(FleetCommand, ReportsWhichArgumentIsWrong) {
  EXPECT_THAT(Run({File("nowhere")}).err,
              HasSubstr("hxahost: " + File("nowhere") + " is not there: name results, bundles or folders of them."));
  EXPECT_EQ(Run({File("nowhere")}).exitStatus, 2);
  EXPECT_THAT(Run({"--stale", "soon", Folder()}).err, HasSubstr("hxahost: --stale \"soon\": give a number of days."));
  EXPECT_EQ(Run({}).exitStatus, 2);
}

}  // namespace
