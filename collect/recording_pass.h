#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "collect/host_handle.h"
#include "collect/records.h"
#include "collect/tool.h"

// What the answer to kGetConfig says of the number that was asked for.
enum class ControllerNumber { kInUse, kNotInUse, kNoneFromHereOn };
ControllerNumber ReadControllerNumber(const Tool& tool, std::string_view config);

// Gives the commands whose output is kept. Called for each number.
using RecordedCommands = std::function<std::span<const ToolCommand>()>;

// The first of two passes over a tool: what is kept as raw output is what it says at one time, whatever the parsing
// makes of it.
RawDataList RecordOutputs(const Tool& tool, HostHandle host, const RecordedCommands& commands);
