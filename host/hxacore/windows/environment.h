#pragma once

#include <string>

namespace NKVRHXA20 {

// This process's environment with the C locale, as a block for CreateProcessW.
std::wstring ChildEnvironment();

}  // namespace NKVRHXA20
