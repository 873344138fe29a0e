#pragma once

#include <filesystem>
#include <vector>

namespace hxahost {

// Whether somebody other than the administrators and the user of this program may change a file, or what lies in a
// folder. False where the system does not say.
bool OthersMayWrite(const std::filesystem::path& path);

// The folders on the way to where a link leads in which others may exchange the next step, and the one of a program to
// which they may add: it may load libraries from there. None where the path is no link.
std::vector<std::filesystem::path> UnsafeFoldersBehind(const std::filesystem::path& link);

// Gives a file the rights of the one that it replaces, and its owner where the system lets this user do so. Where there
// is none it stays as it is.
void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace hxahost
