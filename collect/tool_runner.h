#pragma once

#include <string>

#include "collect/host_handle.h"
#include "collect/tool.h"

// Runs the command for a controller through the host, at most 300 seconds, and returns all that it printed. A run
// that fails is logged and yields the tool's failedOutput. Anything but the host's own exception passes on.
std::string RunTool(const Tool& tool, HostHandle host, const ToolCommand& command, unsigned controllerNumber);
