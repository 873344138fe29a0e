#pragma once

#include <filesystem>
#include <string>

// The path under which the system opens what a Windows path names: on Windows the path itself, elsewhere with its
// backslashes read as slashes.
std::string NativePath(const std::string& windowsPath);

// The file that the system opens under such a path.
std::filesystem::path FileAt(const std::string& nativePath);

// Whether a stream that reads text turns carriage return and line feed into a line feed.
bool HaveStreamsTextMode();
