#pragma once

#include <cstddef>
#include <string>
#include <vector>

using Command = std::vector<std::string>;  // program and arguments

// The resources that a process and those that it started used.
struct Cost {
  double wall = 0;     // seconds by the clock
  double busy = 0;     // seconds of the processors
  double peakMiB = 0;  // of the largest process
};

// Runs the command and drops its output. Throws std::runtime_error if it does not end, or, if isChecked, if its exit
// status is not 0.
Cost CostOf(const Command& command, bool isChecked);

// The same; returns its standard output.
std::string OutputOf(const Command& command);
