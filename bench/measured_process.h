#pragma once

#include <cstddef>
#include <string>
#include <vector>

using Command = std::vector<std::string>;  // program and arguments

// What a process and those that it started took from start to end.
struct Cost {
  double wall = 0;     // seconds by the clock
  double busy = 0;     // seconds of the processors
  double peakMiB = 0;  // of the largest of them
};

// Runs the command with its output read and dropped. Throws std::runtime_error when it does not end, or, where
// isChecked, ends with another status than 0.
Cost CostOf(const Command& command, bool isChecked);

// The same; gives what it wrote on standard output.
std::string OutputOf(const Command& command);
