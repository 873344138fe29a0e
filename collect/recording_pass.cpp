#include "collect/recording_pass.h"

#include "collect/ascii_text.h"
#include "collect/tool_runner.h"

ControllerNumber ReadControllerNumber(const Tool& tool, std::string_view config) {
  if (Contains(config, tool.noneFound)) return ControllerNumber::kNoneFromHereOn;
  return Contains(config, tool.notInUse) ? ControllerNumber::kNotInUse : ControllerNumber::kInUse;
}

RawDataList RecordOutputs(const Tool& tool, HostHandle host, const RecordedCommands& commands) {
  RawDataList rawData;
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    const auto recorded = commands();
    const ControllerNumber read = ReadControllerNumber(tool, RunTool(tool, host, kGetConfig, number));
    if (read == ControllerNumber::kNoneFromHereOn) break;
    if (read == ControllerNumber::kNotInUse) continue;
    for (const ToolCommand& command : recorded) {
      const std::string output = RunTool(tool, host, command, number);
      if (output.empty() && !tool.recordsEmptyOutput) continue;
      // The record names the tool's own number, which is the one to ask it with.
      rawData.push_back(std::make_shared<ZenxRawData>(tool.path, command.command, number, command.option, output));
    }
  }
  return rawData;
}
