#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace hxahost {

// The command that was given with the commands it belongs to, as typed: "hxahost bundle show".
std::string GivenCommand(const CLI::App& program);

// Throws ProgramError for the first argument that no command takes, with the one that was probably meant. Returns where
// all are taken.
void RejectUnexpected(const CLI::App& program, const std::vector<std::string>& arguments);

}  // namespace hxahost
