#pragma once

#include <filesystem>
#include <string>

namespace hxahost {

// The tools run with the rights of whoever runs this program, an administrator as a rule: who can change them, or the
// folder that they run in, can have done what an administrator can. One line that says so of a folder with the folder
// "zenx" in it, "" where nobody else may write there.
std::string WritableToolsWarning(const std::filesystem::path& directory);

}  // namespace hxahost
