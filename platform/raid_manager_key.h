#pragma once

#include <cstddef>

// Where the RAID manager says in the registry in which folder its log is. Its installer is a 32-bit program: 64-bit
// Windows keeps its keys under Wow6432Node.
constexpr const char* kRaidManagerKey = "SOFTWARE\\Wow6432Node\\Adaptec\\RAIDController";
constexpr const char* kRaidLogDirValue = "LogDir";

// With its end. Longer paths count as no log.
constexpr std::size_t kRaidLogPathSize = 256;
