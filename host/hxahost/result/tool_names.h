#pragma once

#include <string_view>

namespace hxahost {

// The utilities that the plug-in runs, by the names of their programs without ".exe".
inline constexpr std::string_view kQcmdrun = "qcmdrun";
inline constexpr std::string_view kArcconf = "arcconf";
inline constexpr std::string_view kHrconf = "hrconf_64";

}  // namespace hxahost
