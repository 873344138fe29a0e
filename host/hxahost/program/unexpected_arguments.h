#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace hxahost {

// The command with its parent commands, as typed: "hxahost bundle show".
std::string GivenCommand(const CLI::App& program);

// Throws ProgramError for the first argument that no command accepts, with the word that was probably meant. Returns if
// all are accepted.
void RejectUnexpected(const CLI::App& program, const std::vector<std::string>& arguments);

}  // namespace hxahost
