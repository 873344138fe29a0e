#pragma once

#include <string>

// The path under which the system opens what a Windows path names: on Windows the path itself, elsewhere with its
// backslashes read as slashes.
std::string NativePath(const std::string& windowsPath);

// Whether a stream that reads text turns carriage return and line feed into a line feed.
bool HaveStreamsTextMode();
