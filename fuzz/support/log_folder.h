#pragma once

#include <string>
#include <string_view>

// The RAID manager's log of this process, in a folder that goes with it.

// Writes the log, byte for byte, and has the plug-in find it as on a system of that version ("6.1"; "" is no Windows NT
// system).
void SetRaidManagerLog(const std::string& systemVersion, std::string_view text);
