#pragma once

#include <cstdio>
#include <string>

// The path under which the system opens what a Windows path names: on Windows the path itself, elsewhere with its
// backslashes read as slashes. Where answers come from the environment and it names a file in the log's place
// (ZENX_RAID_LOG_FILE), that file, in UTF-8.
std::string NativePath(const std::string& windowsPath);

// Opens such a path to read its text; null where it cannot be opened.
std::FILE* OpenNativeFile(const std::string& nativePath);

// Whether a stream that reads text turns carriage return and line feed into a line feed.
bool HaveStreamsTextMode();
