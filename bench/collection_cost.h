#pragma once

#include <cstddef>
#include <string>

// What collecting from a machine and publishing every class costs beside its tools.
struct CollectionCost {
  std::size_t runs = 0;  // of tools
  double whole = 0;      // seconds, median
  double bare = 0;       // seconds that the same commands take in the same order with nothing around them, median
  double ratio = 0;      // median of the rounds', in each of which the two follow on each other
};

// The folder as a machine has it.
CollectionCost MeasureCollection(const std::string& machine, int rounds);
