#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace hxahost {

// The words that may follow a command line, one on each line, for the completion of shells: commands and options, or
// the values of the last option. Empty if any file may follow.
std::string Completions(const CLI::App& program, const std::vector<std::string>& words);

}  // namespace hxahost
