#pragma once

#include <string>
#include <string_view>

// The RAID manager's log of this process, in a folder that is deleted with it.

// Writes the log, byte for byte, where the plug-in finds it on a system of that version ("6.1"; "" is a system other
// than Windows NT).
void SetRaidManagerLog(const std::string& systemVersion, std::string_view text);
