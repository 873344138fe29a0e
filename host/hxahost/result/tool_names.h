#pragma once

#include <string_view>

#include "tools/known_tools.h"

namespace hxahost {

// The utilities that the plug-in runs, by the names of their programs without ".exe".
inline constexpr std::string_view kQcmdrun = qcmdrun::kTool.name;
inline constexpr std::string_view kArcconf = arcconf::kTool.name;
inline constexpr std::string_view kHrconf = hrconf::kTool.name;

}  // namespace hxahost
