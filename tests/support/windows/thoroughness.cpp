#include "tests/support/thoroughness.h"

std::size_t CasesForOneTry() { return 1; }
