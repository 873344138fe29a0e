#pragma once

#include <filesystem>
#include <string>

#include "host/hxahost/program/options.h"

namespace hxahost {

// Paths on the command line are relative to where the program was started, not to where the tools run.
struct QueryPaths {
  std::filesystem::path plugin;
  std::filesystem::path log;
  std::filesystem::path output;
  std::filesystem::path record;
  std::filesystem::path replay;
};

// Throws ProgramError where two outputs are one file.
QueryPaths ReadPaths(const QueryOptions& options);

// Throws ProgramError where there is no working directory: on some systems a folder can be deleted while a program is
// in it.
void CheckWorkingDirectory();

// Makes the directory the working one; "" leaves it. Throws ProgramError.
void EnterDirectory(const std::string& directory);

}  // namespace hxahost
