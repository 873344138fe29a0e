#pragma once

#include <cstddef>

// A test with thousands of cases tries one of so many: every case in a release build, fewer if sanitizers make each
// many times slower.
std::size_t CasesForOneTry();
