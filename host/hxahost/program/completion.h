#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace hxahost {

// The words that may follow those of a command line, one a line, for the completion of shells: commands and options, or
// the values of the option that is last. None where any file may follow.
std::string Completions(const CLI::App& program, const std::vector<std::string>& words);

}  // namespace hxahost
