#pragma once

#include <string_view>

// Utilities number controllers from 1; higher numbers than this are never asked for.
constexpr unsigned kLastControllerNumber = 8;

// What arcconf and hrconf say where there is nothing to collect. The texts stand anywhere in the output.
constexpr std::string_view kNoControllers = "Controllers found: 0";           // also under every number past this one
constexpr std::string_view kInvalidController = "Invalid controller number";  // under this number; go on

// The last line of a report.
constexpr std::string_view kCommandCompleted = "Command completed successfully";
