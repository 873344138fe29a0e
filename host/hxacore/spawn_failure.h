#pragma once

#include <string>

namespace NKVRHXA20 {

// The ways in which running a program fails. Each throws TSpawnException with the path and the reason. The
// process is given where the system could not end it; 0: it is gone.
[[noreturn]] void ThrowNotStarted(const std::string& path, const std::string& reason, bool isThere = true);
[[noreturn]] void ThrowTooLong(const std::string& path, int limitSeconds, long process = 0);
[[noreturn]] void ThrowTooMuchOutput(const std::string& path, long process = 0);

}  // namespace NKVRHXA20
