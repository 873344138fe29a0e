#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hxahost {

// The tools run with the rights of the user of this program, who is usually an administrator: whoever can change the
// tools, or the folder in which they run, can obtain these rights. Returns warnings for a folder that contains the
// folder "zenx"; empty if nobody else may write there, nor to the targets of links in it.
std::vector<std::string> WritableToolsWarnings(const std::filesystem::path& directory);

}  // namespace hxahost
