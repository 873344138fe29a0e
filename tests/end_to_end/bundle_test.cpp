// Bundles in use: the sample machine, recorded by the real program with real processes, and replayed.
//
// tests/golden/one-controller.bundle makes sure that bundles of this form stay readable, and is replayed on both
// systems. It contains the recording of the Windows build for one of the sample machine's controllers. To renew it, run
// RecordsTheBundleThatIsKept on Windows with ZENX_RENEW_BUNDLE=1 in the environment.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/machine_copy.h"
#include "tests/support/raid_log_setting.h"
#include "tests/support/same_lines.h"
#include "tests/support/source_folder.h"

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;
using hxahost::Utf8FromPath;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* kRaidLogFolder = "raid-manager\\";

fs::path Golden(const std::string& name) { return SourceFile("tests/golden") / name; }

class Bundles : public testing::Test {
 protected:
  std::string Name(const std::string& file) const { return Utf8FromPath(folder_.Path() / file); }
  std::string Text(const std::string& file) const { return FileText(folder_.Path() / file); }

  // Runs the program, which must succeed, and returns its output.
  static std::string Run(const std::vector<std::string>& arguments) {
    const ProgramResult result = RunHxahost(arguments);
    EXPECT_EQ(result.exitStatus, 0) << result.err;
    EXPECT_EQ(result.err, "");
    return result.out;
  }

  TemporaryFolder folder_;
};

std::string Sample() { return Utf8FromPath(SampleMachine()); }
std::string KeptBundle() { return Utf8FromPath(Golden("one-controller.bundle")); }

// The text without a line that it must contain.
std::string WithoutLine(std::string text, const std::string& line) {
  const std::size_t begin = text.find(line + "\n");
  EXPECT_NE(begin, text.npos) << line;
  return begin == text.npos ? text : text.erase(begin, line.size() + 1);
}

const std::string kReplayedKey = "  \"replayed\": true,";

TEST_F(Bundles, GiveTheSameResultAgainInEveryFormatButSayThatTheyDo) {
  const RaidLogSetting setting(kRaidLogFolder);
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"json",    {kReplayedKey}                                  },
      {"table",   {"Replayed from a bundle."}                     },
      {"html",    {kReplayedKey, "<p>Replayed from a bundle.</p>"}},
      {"cim-xml", {"<!-- Replayed from a bundle. -->"}            },
      {"mof",     {"// Replayed from a bundle."}                  },
  };
  for (const auto& [format, marks] : cases) {
    const std::vector<std::string> query = {"query", "--format", format, "--runs", "--repeat", "2"};
    std::vector<std::string> live = query;
    live.insert(live.end(), {"--directory", Sample(), "--record", Name("m.bundle")});
    std::vector<std::string> again = query;
    again.insert(again.end(), {"--replay", Name("m.bundle")});
    const std::string shown = Run(live);
    std::string replayed = Run(again);
    for (const std::string& mark : marks) replayed = WithoutLine(replayed, mark);
    EXPECT_TRUE(replayed == shown) << format;
    EXPECT_THAT(shown, HasSubstr(format == std::string("table") ? "RAID manager" : "KVRSG_LogRecord_RAIDMgrEvent"));
  }
}

TEST_F(Bundles, GiveTheSameHealthAgain) {
  const std::pair<const char*, std::string> marks[] = {
      {"prometheus", "# Replayed from a bundle."},
      {"nagios",     "Replayed from a bundle."  },
      {"text",       "Replayed from a bundle."  },
  };
  for (const auto& [format, mark] : marks) {
    const ProgramResult live =
        RunHxahost({"health", "--format", format, "--directory", Sample(), "--record", Name("m.bundle")});
    const ProgramResult again = RunHxahost({"health", "--format", format, "--replay", Name("m.bundle")});
    EXPECT_EQ(live.exitStatus, 2);
    EXPECT_EQ(again.exitStatus, 2);
    EXPECT_EQ(WithoutLine(again.out, mark), live.out);
  }
}

TEST_F(Bundles, ReplayFailuresOfToolsAndAMissingLog) {
  const MachineCopy machine;
  machine.RemoveTool("qcmdrun");
  machine.SetAnswer("arcconf/1/getconfig-al", machine.Answer("arcconf/1/getconfig-al").substr(0, 9000));
  machine.SetAnswer("arcconf/2/getlogs-dead", "");
  for (const char* const folder : {"nowhere\\", ""}) {
    const RaidLogSetting setting(*folder == '\0' ? std::nullopt : std::optional<std::string>(folder));
    const std::vector<std::string> query = {"query", "--format", "json", "--runs"};
    std::vector<std::string> live = query;
    live.insert(live.end(), {"--directory", machine.Directory(), "--record", Name("m.bundle")});
    std::vector<std::string> again = query;
    again.insert(again.end(), {"--replay", Name("m.bundle")});
    const std::string expected = Run(live);
    EXPECT_TRUE(WithoutLine(Run(again), kReplayedKey) == expected) << folder;
  }
}

TEST_F(Bundles, AreTheSameWhenTheyAreRecordedFromAReplay) {
  Run({"query", "--format", "json", "--replay", KeptBundle(), "--record", Name("n.bundle"), "--output", Name("out")});
  EXPECT_TRUE(FileText(Golden("one-controller.bundle")) == Text("n.bundle"));
}

TEST_F(Bundles, OfTheSampleMachinePublishTheSameAsTheMachine) {
  const std::string json = Run({"query", "--format", "json", "--repeat", "2", "--replay", RecordedSampleMachine()});
  Json replayed = Json::parse(json);
  replayed.erase("replayed");
  EXPECT_TRUE(SameText(RunOfSampleMachine().result.dump(1), replayed.dump(1)));
}

TEST_F(Bundles, OfWindowsAreReplayedOnEverySystem) {
  const Json replayed = Json::parse(Run({"query", "--format", "json", "--replay", KeptBundle()}));
  const Json golden = Json::parse(FileText(Golden("sample-machine.json")));
  // Every instance of that controller on the sample machine, in the same order.
  Json expected = Json::array();
  std::set<std::string> paths;
  for (const Json& instance : replayed["queries"][0]["instances"]) paths.insert(instance["path"]);
  for (const Json& instance : golden["queries"][0]["instances"]) {
    if (paths.contains(instance["path"])) expected.push_back(instance);
  }
  EXPECT_TRUE(SameText(expected.dump(1), replayed["queries"][0]["instances"].dump(1)));
  EXPECT_GT(expected.size(), 100U);
  const std::string page = Run({"query", "--replay", KeptBundle()});
  EXPECT_THAT(page,
              HasSubstr("RAID controllers of SAMPLE on 2026-11-21 09:30:00 +01:00, collected in C:\\sample-machine\n"));
}

// The requests and answers are the same as in the kept bundle; times and folder differ.
TEST_F(Bundles, RecordsTheBundleThatIsKept) {
  const RaidLogSetting setting(kRaidLogFolder);
  const MachineCopy machine;
  machine.LeaveOnly("qcmdrun");
  machine.RemoveController("qcmdrun", "2");
  Run({"query", "--format", "json", "--directory", machine.Directory(), "--record", Name("m.bundle"), "--output",
       Name("out"), "--machine-name", "SAMPLE", "--local-time", "20261121093000.000000+060"});
  hxahost::Bundle now = hxahost::ReadBundleFile(folder_.Path() / "m.bundle");
  ASSERT_TRUE(now.raidLog);
  // Paths as on any Windows machine.
  now.directory = "C:\\sample-machine";
  std::ranges::replace(now.raidLog->path, '/', '\\');
  if (std::getenv("ZENX_RENEW_BUNDLE") != nullptr) {
    WriteFileText(Golden("one-controller.bundle"), hxahost::WriteBundle(now));
  }
  const hxahost::Bundle kept = hxahost::ReadBundleFile(Golden("one-controller.bundle"));
  ASSERT_EQ(now.runs.size(), kept.runs.size());
  for (std::size_t run = 0; run < now.runs.size(); ++run) now.runs[run].result.seconds = kept.runs[run].result.seconds;
  now.osVersion = kept.osVersion;
  now.querySeconds = kept.querySeconds;
  EXPECT_TRUE(hxahost::WriteBundle(now) == hxahost::WriteBundle(kept));
}

TEST_F(Bundles, ThatAreMaskedPublishAsMuchWithTheSameLinks) {
  const std::string plain = RecordedSampleMachine();
  EXPECT_EQ(Run({"bundle", "mask", plain, Name("masked.bundle")}), "");
  const Json before = Json::parse(Run({"query", "--format", "json", "--replay", plain}));
  const Json after = Json::parse(Run({"query", "--format", "json", "--replay", Name("masked.bundle")}));
  const Json& first = before["queries"][0]["instances"];
  const Json& second = after["queries"][0]["instances"];
  ASSERT_EQ(first.size(), second.size());
  // The new form of each path: the same everywhere, and different for different paths.
  std::map<std::string, std::string> paths;
  std::map<std::string, std::string> back;
  for (std::size_t index = 0; index < first.size(); ++index) {
    EXPECT_EQ(first[index]["class"], second[index]["class"]);
    paths.emplace(first[index]["path"], second[index]["path"]);
    back.emplace(second[index]["path"], first[index]["path"]);
  }
  EXPECT_EQ(paths.size(), back.size());
  EXPECT_FALSE(before.contains("masked"));
  EXPECT_TRUE(after["masked"]);
  const std::string note = "\nReplayed from a bundle in which names and serial numbers are masked.\n";
  EXPECT_THAT(Run({"query", "--class", "disks", "--replay", Name("masked.bundle")}), HasSubstr(note));
  EXPECT_THAT(RunHxahost({"health", "--replay", Name("masked.bundle")}).out, HasSubstr(note));
  int links = 0;
  for (std::size_t index = 0; index < first.size(); ++index) {
    const Json& properties = first[index]["properties"];
    ASSERT_EQ(properties.size(), second[index]["properties"].size());
    for (const auto& [name, value] : properties.items()) {
      const Json& masked = second[index]["properties"][name];
      if (name == "Antecedent" || name == "Dependent") {
        EXPECT_EQ(paths.at(value), masked);
        ++links;
      }
      if (name.find("Status") != name.npos || name == "State") {
        EXPECT_EQ(value, masked) << name;
      }
    }
  }
  EXPECT_GT(links, 100);
  for (const char* const secret : {"SAMPLE", "DBSERVER", "NV3LE77Q2H", "5000F0A0001B7800", "S96H8B01234", "K6E0412277",
                                   "Database", "sample-machine"}) {
    EXPECT_THAT(Text("masked.bundle"), Not(HasSubstr(secret)));
    EXPECT_THAT(FileText(RunOfSampleMachine().bundle), HasSubstr(secret));
  }
  EXPECT_THAT(Text("masked.bundle"), HasSubstr("ZX20912")) << "the part to order";
}

TEST_F(Bundles, AreMaskedAsTheyAreRecordedWhileTheResultIsNot) {
  const std::string shown = Run({"query", "--format", "json", "--class", "KVRSG_zxDiskDrive", "--replay",
                                 RecordedSampleMachine(), "--record", Name("m.bundle"), "--mask=all"});
  EXPECT_THAT(shown, HasSubstr("NV3LE77Q2H"));
  EXPECT_THAT(Text("m.bundle"), HasSubstr("\nmasked: yes\n"));
  EXPECT_THAT(Text("m.bundle"), Not(HasSubstr("NV3LE77Q2H")));
  EXPECT_THAT(Text("m.bundle"), Not(HasSubstr("ZX20912")));
}

TEST_F(Bundles, CanBeComparedWithEachOtherAndWithResults) {
  const std::string bundle = RecordedSampleMachine();
  EXPECT_EQ(RunHxahost({"diff", bundle, bundle}).exitStatus, 0);
  EXPECT_EQ(RunHxahost({"diff", bundle, Utf8FromPath(Golden("sample-machine.json"))}).exitStatus, 0);
  // The second query, which is the last in the file, does not read the log again.
  const auto twice = folder_.Write("twice.json", RunOfSampleMachine().result.dump());
  const ProgramResult result = RunHxahost({"diff", bundle, Utf8FromPath(twice)});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_THAT(result.out, HasSubstr("Log records: 14"));
  for (const char* const ofObjects :
       {"Disappeared", "Disks replaced", "States that changed", "Appeared", "Other prop"}) {
    EXPECT_THAT(result.out, Not(HasSubstr(ofObjects)));
  }
}

// A bundle without one of its commands, with a valid closing line.
std::string Without(const std::string& command) {
  hxahost::Bundle bundle = hxahost::ReadBundleFile(RunOfSampleMachine().bundle);
  std::erase_if(bundle.runs, [&command](const auto& run) { return CommandText(run) == command; });
  return hxahost::WriteBundle(bundle);
}

TEST_F(Bundles, ThatLackACommandAreAnErrorThatNamesIt) {
  const std::string lacking = Utf8FromPath(folder_.Write("l.bundle", Without("zenx//arcconf.exe getlogs 2 uart")));
  const ProgramResult result = RunHxahost({"query", "--replay", lacking, "--output", Name("out")});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_THAT(result.err, HasSubstr("zenx//arcconf.exe getlogs 2 uart"));
  EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
  EXPECT_FALSE(fs::exists(folder_.Path() / "out"));
}

TEST_F(Bundles, ThatLackACommandReportNothingElse) {
  for (const std::string command :
       {"zenx//qcmdrun.exe getconfig 1 al", "zenx//hrconf_64.exe getconfig 1 al", "zenx//arcconf.exe getlogs 2 uart"}) {
    const std::string lacking = Utf8FromPath(folder_.Write("l.bundle", Without(command)));
    const auto health = nlohmann::json::parse(RunHxahost({"health", "--format", "json", "--replay", lacking}).out);
    std::vector<std::string> unknown;
    for (const auto& incident : health.at("incidents")) {
      if (incident.at("severity") == "unknown") unknown.push_back(incident.at("headline"));
    }
    EXPECT_THAT(unknown, testing::ElementsAre("collection replay ended: the bundle does not hold " + command));
  }
}

TEST_F(Bundles, ThatLackACommandReportItInTheVerdict) {
  const std::string lacking = Utf8FromPath(folder_.Write("l.bundle", Without("zenx//qcmdrun.exe getconfig 1 al")));
  const ProgramResult health = RunHxahost({"health", "--replay", lacking});
  EXPECT_EQ(health.exitStatus, 3);
  EXPECT_EQ(health.err, "");
  EXPECT_THAT(health.out, AllOf(StartsWith("UNKNOWN: 1 unknown "),
                                HasSubstr("the bundle does not hold zenx//qcmdrun.exe getconfig 1 al\n")));
  EXPECT_THAT(RunHxahost({"status", "--replay", lacking}).out, HasSubstr("the bundle does not hold zenx//qcmdrun.exe"));
  EXPECT_THAT(RunHxahost({"health", "--format", "nagios", "--replay", lacking}).out, StartsWith("ZENX UNKNOWN - "));
}

TEST_F(Bundles, OfACollectionThatRunsCommandsOnceReplayInBothModes) {
  const RaidLogSetting setting(kRaidLogFolder);
  const std::vector<std::string> time = {"--local-time", "20261121093000.000000+060"};
  Run({"query", "--ask-once", "--format", "json", "--directory", Sample(), "--record", Name("m.bundle"), "--output",
       Name("live"), "--local-time", time[1]});
  const hxahost::Bundle recorded = hxahost::ReadBundleFile(folder_.Path() / "m.bundle");
  std::set<std::string> commands;
  for (const auto& run : recorded.runs) EXPECT_TRUE(commands.insert(CommandText(run)).second) << CommandText(run);
  EXPECT_EQ(commands.size(), 42U);
  for (const char* const mode : {"--ask-once", "--ask-again"}) {
    const std::string again = Run({"query", mode, "--format", "json", "--replay", Name("m.bundle")});
    EXPECT_TRUE(WithoutLine(again, kReplayedKey) == Text("live")) << mode;
  }
}

TEST_F(Bundles, ThatAreDamagedNewerOrForeignAreRefusedInOneLine) {
  const std::string text = FileText(Golden("one-controller.bundle"));
  std::string newer = text;
  newer.replace(newer.find("bundle 1\n"), 9, "bundle 9\n");
  const std::string cut = Utf8FromPath(folder_.Write("cut.bundle", text.substr(0, text.size() / 2)));
  struct Case {
    const char* name;
    std::vector<std::string> arguments;
    int exitStatus;
    const char* says;
  };
  const Case cases[] = {
      {"damaged",   {"query", "--replay", cut},                                                2, "is damaged"      },
      {"health",    {"health", "--replay", cut},                                               3, "is damaged"      },
      {"list",      {"bundle", "list", cut},                                                   2, "is damaged"      },
      {"diff",      {"diff", cut, cut},                                                        2, "is damaged"      },
      {"newer",     {"query", "--replay", Utf8FromPath(folder_.Write("newer.bundle", newer))}, 2, "has the format 9"},
      {"foreign",   {"query", "--replay", Utf8FromPath(Golden("sample-machine.json"))},        2, "is no bundle"    },
      {"missing",   {"query", "--replay", Name("missing")},                                    2, "cannot be read"  },
      {"no folder", {"query", "--record", Name("no/m.bundle")},                                2, "--record "       },
      {"twice",     {"query", "--record", Name("m"), "--output", Name("m")},                   2, "are one file"    },
  };
  for (const Case& each : cases) {
    const ProgramResult result = RunHxahost(each.arguments);
    EXPECT_EQ(result.exitStatus, each.exitStatus) << each.name;
    EXPECT_EQ(result.out, "") << each.name;
    EXPECT_THAT(result.err, HasSubstr(each.says)) << each.name;
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << each.name << ": " << result.err;
  }
  EXPECT_FALSE(fs::exists(folder_.Path() / "m"));
}

}  // namespace
