#pragma once

#include <filesystem>

namespace hxahost {

// Throws ProgramError where there is no working directory: on some systems a folder can be deleted while a program is
// in it.
void CheckWorkingDirectory();

// Makes the directory the working one; "" leaves it. Throws ProgramError.
void EnterDirectory(const std::filesystem::path& directory);

}  // namespace hxahost
