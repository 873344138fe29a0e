#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hxahost {

// The arguments after the program's name, in UTF-8.
std::vector<std::string> ProgramArguments(int count, char** arguments);

// The running program, and its folder. They throw ProgramError if the system does not tell.
std::filesystem::path ProgramFile();
std::filesystem::path ProgramFolder();

unsigned long ProcessId();

// Whether a process with this number exists on this machine.
bool IsProcessRunning(unsigned long process);

}  // namespace hxahost
