#include "fuzz/support/require.h"

#include <cstdlib>
#include <iostream>

void Require(bool holds, std::string_view mustHold, std::string_view shown) {
  if (holds) return;
  std::cerr << "Does not hold: " << mustHold << (shown.empty() ? "" : ": ") << shown << std::endl;
  std::abort();
}

void Require(bool holds, std::string_view mustHold) { Require(holds, mustHold, {}); }
