#pragma once

#include <functional>

// Does the work and returns the seconds that it took. Instructions are counted inside this function alone, found by
// its name, so it is neither inlined nor overloaded.
double Measured(const std::function<void()>& work);
