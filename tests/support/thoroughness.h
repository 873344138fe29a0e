#pragma once

#include <cstddef>

// Of how many cases a test that has thousands tries one: all of them where the program is a release build, some where
// sanitizers make each many times slower.
std::size_t CasesForOneTry();
