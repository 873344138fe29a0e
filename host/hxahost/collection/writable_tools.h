#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hxahost {

// The tools run with the rights of whoever runs this program, an administrator as a rule: who can change them, or the
// folder that they run in, can have done what an administrator can. Lines that say so of a folder with the folder
// "zenx" in it, none where nobody else may write there, nor to what links in it lead to.
std::vector<std::string> WritableToolsWarnings(const std::filesystem::path& directory);

}  // namespace hxahost
