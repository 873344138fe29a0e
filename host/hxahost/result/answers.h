#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/tool_run.h"

// Summarises the answers of the utilities.
namespace hxahost {

// The outcome of each utility: "qcmdrun 2 controllers, hrconf_64 not started, arcconf not run"; "" if none was run.
std::string AnswersText(const ToolRunList& runs);

// The utilities whose program no run found.
std::vector<std::string_view> NotInstalled(const ToolRunList& runs);

// Whether a utility answered, even without a controller.
bool HasAnswer(const ToolRunList& runs);

// Whether a utility described a controller.
bool HasController(const ToolRunList& runs);

}  // namespace hxahost
