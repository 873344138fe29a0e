#pragma once

#include <optional>
#include <string>

// A variable of this process's environment, as the system holds it now; nothing where it is not set.
std::optional<std::string> EnvironmentVariable(const char* name);
