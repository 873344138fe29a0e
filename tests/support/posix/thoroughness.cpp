#include "tests/support/thoroughness.h"

// Native tests are built with sanitizers. No divisor of the number of faults, so that each of them has its turn.
std::size_t CasesForOneTry() { return 13; }
