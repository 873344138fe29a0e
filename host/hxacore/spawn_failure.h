#pragma once

#include <string>

namespace NKVRHXA20 {

// The three ways in which running a program fails. Each throws TSpawnException with the path and the reason.
[[noreturn]] void ThrowNotStarted(const std::string& path, const std::string& reason);
[[noreturn]] void ThrowTooLong(const std::string& path, int limitSeconds);
[[noreturn]] void ThrowTooMuchOutput(const std::string& path);

}  // namespace NKVRHXA20
