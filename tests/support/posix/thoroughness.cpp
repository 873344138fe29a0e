#include "tests/support/thoroughness.h"

// Native tests run with sanitizers. It does not divide the number of faults, so each fault is tried.
std::size_t CasesForOneTry() { return 13; }
