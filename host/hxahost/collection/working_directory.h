#pragma once

#include <filesystem>

namespace hxahost {

// Throws ProgramError if the working directory does not exist: on some systems a folder can be deleted while a program
// uses it.
void CheckWorkingDirectory();

// Changes to the directory; "" changes nothing. Throws ProgramError.
void EnterDirectory(const std::filesystem::path& directory);

}  // namespace hxahost
