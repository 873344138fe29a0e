#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace hxahost {

// The manual page hxahost(1) in mdoc, with the texts of --help. An option of several commands is described once.
std::string ManualPage(const CLI::App& program);

}  // namespace hxahost
