#include "collect/tool_runner.h"

#include <vector>

#include <fmt/core.h>

#include "plugin/host_interface/services.h"

namespace {

constexpr int kLimitSeconds = 300;

}  // namespace

std::string RunTool(const Tool& tool, HostHandle host, const ToolCommand& command, unsigned controllerNumber) {
  const std::string number = std::to_string(controllerNumber);
  const bool hasOption = command.option != kNoOption;
  std::vector<std::string> arguments = {std::string(command.command), number};
  std::string line = fmt::format("{}{} opt1: {}", tool.logPrefix, number, command.command);
  if (hasOption) {
    arguments.emplace_back(command.option);
    line.append(" opt2: ").append(command.option);
  }
  Log(host, kLogRoutine, line);
  try {
    return NKVRHXA20::TOSSpecific::SpawnProcess(std::string(tool.path), std::move(arguments), kLimitSeconds);
  } catch (const NKVRHXA20::THXAException& failure) {
    Log(host, kLogRoutine, std::string(tool.abortText) + failure.what());
    return std::string(tool.failedOutput);
  }
}
