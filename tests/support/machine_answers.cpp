#include "tests/support/machine_answers.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/bundle_format.h"
#include "tests/support/tool_text.h"
#include "tools/known_tools.h"

using namespace hxahost;

namespace {

constexpr std::string_view kLogFile = "RaidEvtA.log";

std::string ValueOf(const std::string& line, std::string_view label) {
  return line.starts_with(label) ? line.substr(label.size()) : "";
}

RecordedFailure FailureOf(const std::string& text) {
  const std::size_t blank = text.find(' ');
  const auto* const word = std::ranges::find(bundle_format::kFailureWords, std::string_view(text).substr(0, blank));
  const auto message = blank == text.npos ? std::nullopt : Unquote(std::string_view(text).substr(blank + 1));
  if (word == std::end(bundle_format::kFailureWords) || !message) throw std::runtime_error("no failure: " + text);
  return {static_cast<FailureKind>(word - std::begin(bundle_format::kFailureWords)), *message};
}

void AddLine(RecordedRun& run, const std::string& line, std::string& lineEnd) {
  if (line == "line-ends: LF") {
    lineEnd = "\n";
  } else if (const std::string status = ValueOf(line, "exit-status: "); !status.empty()) {
    run.result.exitStatus = std::stoi(status);
  } else if (const std::string failure = ValueOf(line, "failure: "); !failure.empty()) {
    run.failure = FailureOf(failure);
  } else {
    const auto bytes = UnescapeBytes(line);
    if (!bytes) throw std::runtime_error("no escaped text: " + line);
    run.result.output += *bytes + lineEnd;
  }
}

// The text with the lines between "repeat: 0 199" and "repeat-end" once for each number, which replaces "{}".
std::string WithRepetitions(const std::string& text) {
  std::string repeated;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream range(ValueOf(line, "repeat: "));
    unsigned first = 0;
    unsigned last = 0;
    if (!(range >> first >> last)) {
      repeated += line + "\n";
      continue;
    }
    std::string block;
    while (std::getline(lines, line) && line != "repeat-end") block += line + "\n";
    for (unsigned number = first; number <= last; ++number) repeated += Replaced(block, "{}", std::to_string(number));
  }
  return repeated;
}

// The output of a tool if the machine contains no answer.
std::string UsualAnswer(const Tool& tool, const ToolCommand& command, bool hasControllers) {
  if (command != kGetConfig) return std::string(kCommandCompleted) + ".\r\n";
  return std::string(hasControllers ? tool.notInUse : tool.noneFound) + "\r\n";
}

void AddRuns(const MachineAnswers& answers, const Tool& tool, unsigned number, Bundle& bundle) {
  constexpr int kMostTimes = 3;  // a controller's configuration is requested once, recorded and parsed
  const bool hasControllers = std::ranges::any_of(
      answers.runs, [&](const auto& each) { return each.first.starts_with(std::string(tool.name) + " "); });
  for (const ToolCommand& command : tool.recorded) {
    RecordedRun run;
    run.path = tool.path;
    run.arguments = {std::string(command.command), std::to_string(number)};
    if (command.option != kNoOption) run.arguments.emplace_back(command.option);
    run.result.exitStatus = 0;
    run.result.output = UsualAnswer(tool, command, hasControllers);
    std::string text(tool.name);
    auto answer = answers.runs.find(text);
    for (const std::string& argument : run.arguments) text += " " + argument;
    if (const auto own = answers.runs.find(text); own != answers.runs.end()) answer = own;
    if (answer != answers.runs.end()) {
      run.result = answer->second.result;
      run.failure = answer->second.failure;
    }
    bundle.runs.insert(bundle.runs.end(), kMostTimes, run);
  }
}

}  // namespace

MachineAnswers ReadMachineAnswers(const std::string& text) {
  MachineAnswers answers;
  RecordedRun* run = nullptr;
  std::string lineEnd;
  std::istringstream lines(WithRepetitions(text));
  for (std::string line; std::getline(lines, line);) {
    if (const std::string command = ValueOf(line, "$ "); command == kLogFile) {
      answers.raidLog = "";
      run = nullptr;
    } else if (!command.empty()) {
      run = &answers.runs[command];
      run->result.exitStatus = 0;
      lineEnd = "\r\n";
    } else if (run != nullptr) {
      AddLine(*run, line, lineEnd);
    } else if (answers.raidLog) {
      *answers.raidLog += line + "\r\n";
    }
  }
  return answers;
}

Bundle BundleOf(const MachineAnswers& answers) {
  Bundle bundle;
  bundle.program = "1.0.0";
  bundle.machine = "SERVER";
  bundle.directory = "C:\\tools";
  bundle.osVersion = {true, 6, 1};
  bundle.localTimes = {
      {NKVRHXA20::TCIMDateTime("20261121093000.000000+060"), 1}
  };
  for (const KnownTool& known : kKnownTools) {
    for (unsigned number = 1; number <= kLastControllerNumber; ++number) AddRuns(answers, known.tool, number, bundle);
  }
  if (answers.raidLog) {
    bundle.raidLogDir = "C:\\ZXM\\";
    bundle.raidLog = RecordedLog{"C:\\ZXM\\KVR\\Zentraxis Manager\\" + std::string(kLogFile), *answers.raidLog, {}};
  }
  return bundle;
}
