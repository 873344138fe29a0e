#pragma once

#include <span>
#include <string_view>

// What is different about each of the controller utilities, and what they have in common: constants alone, which the
// adapters run them with and the host reads their answers with.

// Utilities number controllers from 1; higher numbers than this are never asked for.
constexpr unsigned kLastControllerNumber = 8;

// One command of a tool and its option.
struct ToolCommand {
  std::string_view command;
  std::string_view option;

  friend constexpr bool operator==(const ToolCommand&, const ToolCommand&) = default;
};

// Means "no option" in command tables; it is recorded as written, and never passed to a tool.
constexpr std::string_view kNoOption = "nuthin";

// Asks for a controller as a whole: the answer decides whether there is one.
constexpr ToolCommand kGetConfig = {"getconfig", "al"};

// Heads the controller's section of that answer.
constexpr std::string_view kControllerHeading = "Controller information";

// The last line of a report.
constexpr std::string_view kCommandCompleted = "Command completed successfully";

struct Tool {
  std::string_view name = {};          // of its program, without ".exe"
  std::string_view path = {};          // as spawned and as recorded; the doubled slash is part of it
  std::string_view logPrefix = {};     // with its blanks; the controller number follows directly
  std::string_view abortText = {};     // the failure's own message follows directly
  std::string_view failedOutput = {};  // what a run that failed yields

  // What the answer to kGetConfig says anywhere in it where there is nothing to collect.
  std::string_view noneFound = {};   // under this number and every higher one
  std::string_view notInUse = {};    // under this number
  std::string_view unreadable = {};  // a controller is there that the tool cannot read; "" where no tool says so

  // Beside kGetConfig, which begins each of the two passes over a controller:
  std::span<const ToolCommand> recorded = {};  // what is asked to be kept as raw output
  std::span<const ToolCommand> parsed = {};    // what is asked to be parsed
  bool recordsEmptyOutput = false;
};

// How often a tool is run at most, with as many controllers as there are numbers.
constexpr std::size_t MostRuns(const Tool& tool) {
  return kLastControllerNumber * (1 + tool.recorded.size() + 1 + tool.parsed.size());
}
