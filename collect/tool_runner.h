#pragma once

#include <string>
#include <string_view>

#include "collect/host_handle.h"

// What is different about running each of the controller utilities.
struct Tool {
  std::string_view path;          // as spawned and as recorded; the doubled slash is part of it
  std::string_view logPrefix;     // with its blanks; the controller number follows directly
  std::string_view abortText;     // the failure's own message follows directly
  std::string_view failedOutput;  // what a run that failed yields
};

// Stands for "no option" in command tables; it is recorded as written, and never passed to a tool.
constexpr std::string_view kNoOption = "nuthin";

// One command of a tool and its option.
struct ToolCommand {
  std::string_view command;
  std::string_view option;
};

// Runs the command for a controller through the host, at most 300 seconds, and returns all that it printed. A run
// that fails is logged and yields the tool's failedOutput. Anything but the host's own exception passes on.
std::string RunTool(const Tool& tool, HostHandle host, const ToolCommand& command, unsigned controllerNumber);
