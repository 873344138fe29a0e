#pragma once

#include <filesystem>
#include <vector>

namespace hxahost {

// Whether anyone except the administrators and the user of this program may change a file, or the contents of a
// folder. False if the system does not report it.
bool OthersMayWrite(const std::filesystem::path& path);

// Follows a link and returns the folders on the way in which others may replace the next step, and the folder of a
// program if others may add files to it, as the program may load libraries from there. Empty if the path is not a link.
std::vector<std::filesystem::path> UnsafeFoldersOfLink(const std::filesystem::path& link);

// Copies the rights of the file that is replaced to the new file, and its owner if the system permits that. Without a
// file to replace nothing changes.
void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace hxahost
