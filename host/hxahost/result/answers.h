#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/tool_run.h"

// Which utilities answered, and with how many controllers.
namespace hxahost {

// What became of each utility: "qcmdrun 2 controllers, hrconf_64 not started, arcconf not run"; "" where none was run.
std::string AnswersText(const ToolRunList& runs);

// The utilities of which no run found the program.
std::vector<std::string_view> NotInstalled(const ToolRunList& runs);

// Whether a utility answered, be it that it has no controller.
bool HasAnswer(const ToolRunList& runs);

// Whether a utility described a controller.
bool HasController(const ToolRunList& runs);

}  // namespace hxahost
