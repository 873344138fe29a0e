// Machines in real situations: the answers of the utilities, and the expected output of the program.
// tests/machines/README.md describes both files.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/result/tool_answer.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/machine_answers.h"
#include "tests/support/same_lines.h"
#include "tests/support/source_folder.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;

std::set<std::string> NamesOf(const std::string& extension) {
  std::set<std::string> names;
  for (const auto& file : fs::directory_iterator(SourceFile("tests/machines"))) {
    if (file.path().extension() == extension) names.insert(Utf8FromPath(file.path().stem()));
  }
  return names;
}

// The commands of "$ hxahost status --warn hard-errors=5".
std::vector<std::string> CommandsIn(const std::string& expected) {
  std::vector<std::string> commands;
  std::istringstream lines(expected);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("$ hxahost ")) commands.push_back(line);
  }
  return commands;
}

std::vector<std::string> ArgumentsOf(const std::string& command) {
  std::istringstream words(command.substr(std::string("$ hxahost ").size()));
  return {std::istream_iterator<std::string>(words), {}};
}

// The commands of the answers that a collection used.
std::set<std::string> Used(const hxahost::Bundle& recorded) {
  std::set<std::string> used;
  for (const hxahost::RecordedRun& run : recorded.runs) {
    std::string command = hxahost::ToolName(run.path);
    used.insert(command);
    for (const std::string& argument : run.arguments) command += " " + argument;
    used.insert(command);
  }
  return used;
}

class Machines : public testing::TestWithParam<std::string> {
 protected:
  std::string Run(const std::string& command, const fs::path& bundle) const {
    std::vector<std::string> arguments = ArgumentsOf(command);
    arguments.insert(arguments.end(),
                     {"--width", "80", "--replay", Utf8FromPath(bundle), "--record", Utf8FromPath(Recorded())});
    const ProgramResult result = RunHxahost(arguments);
    EXPECT_EQ(result.err.starts_with("hxahost: No "), result.exitStatus == 4) << result.err;
    EXPECT_EQ(result.err.empty(), result.exitStatus != 4) << result.err;
    return command + "\n" + result.out;
  }

  fs::path Recorded() const { return folder_.Path() / "used.bundle"; }

  TemporaryFolder folder_;
};

TEST_P(Machines, ShowTheFaultsAndTheActions) {
  const fs::path file = SourceFile("tests/machines") / GetParam();
  const MachineAnswers answers = ReadMachineAnswers(FileText(file.string() + ".answers"));
  const fs::path bundle = folder_.Write("machine.bundle", WriteBundle(BundleOf(answers)));
  const std::vector<std::string> commands = CommandsIn(FileText(file.string() + ".expected"));
  ASSERT_FALSE(commands.empty()) << "write down the expected output of the program";
  std::string shown;
  for (const std::string& command : commands) shown += Run(command, bundle);
  EXPECT_TRUE(IsGolden("../machines/" + GetParam() + ".expected", shown));
  const hxahost::Bundle recorded = hxahost::ReadBundleFile(Recorded());
  const std::set<std::string> used = Used(recorded);
  for (const auto& [command, run] : answers.runs) EXPECT_TRUE(used.contains(command)) << "nobody asks " << command;
  EXPECT_EQ(answers.raidLog.has_value(), recorded.raidLog.has_value());
}

INSTANTIATE_TEST_SUITE_P(Recorded, Machines, testing::ValuesIn(NamesOf(".answers")), [](const auto& machine) {
  std::string name = machine.param;
  std::ranges::replace(name, '-', '_');
  return name;
});

TEST(MachineFiles, AreThereInPairs) {
  EXPECT_GE(NamesOf(".answers").size(), 60U);
  EXPECT_EQ(NamesOf(".answers"), NamesOf(".expected"));
}

TEST(MachineFiles, ExpectTheVerdictAndTheTablesInAHundredLinesAtMost) {
  for (const std::string& name : NamesOf(".expected")) {
    const std::string expected = FileText(SourceFile("tests/machines") / (name + ".expected"));
    EXPECT_LE(std::ranges::count(expected, '\n'), 100) << name;
    EXPECT_TRUE(expected.starts_with("$ hxahost status\n")) << name;
    EXPECT_NE(expected.find("\n$ hxahost query"), expected.npos) << name;
  }
}

}  // namespace
