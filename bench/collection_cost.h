#pragma once

#include <cstddef>
#include <string>

// What collecting from a machine and publishing every class costs beside its tools.
struct CollectionCost {
  std::size_t runs = 0;  // of tools
  // Median seconds of the rounds, and those that the same commands take in the same order with nothing around them.
  // The ratios are the median of the rounds', in each of which the two follow on each other.
  double whole = 0;
  double bare = 0;
  double ratio = 0;
  // The same of the processors' time, tools included. Other work on the machine does not show here; waiting neither.
  double wholeBusy = 0;
  double bareBusy = 0;
  double ratioBusy = 0;
};

// The folder as a machine has it.
CollectionCost MeasureCollection(const std::string& machine, int rounds);
