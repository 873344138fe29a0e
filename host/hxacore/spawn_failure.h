#pragma once

#include <string>

namespace NKVRHXA20 {

// The failures of running a program. Each throws TSpawnException with the path and the reason, and with the process if
// the system could not end it; 0: it is gone.
[[noreturn]] void ThrowNotStarted(const std::string& path, const std::string& reason, bool isThere = true);
[[noreturn]] void ThrowTooLong(const std::string& path, int limitSeconds, long process = 0);
[[noreturn]] void ThrowTooMuchOutput(const std::string& path, long process = 0);

}  // namespace NKVRHXA20
