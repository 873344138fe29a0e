#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/os_version.h"

// What stands in the environment for the answers of the system. Systems without the services that Windows has always
// take them from there, Windows only where ZENX_PLATFORM says so: a collection that is replayed is told what the
// machine said on which it was recorded.
constexpr const char* kPlatformVariable = "ZENX_PLATFORM";  // "environment": the others hold on Windows, too
constexpr const char* kOsVersionVariable = "ZENX_OS_VERSION";
constexpr const char* kRaidLogDirVariable = "ZENX_RAID_LOG_DIR";
constexpr const char* kRaidLogFileVariable = "ZENX_RAID_LOG_FILE";  // the file opened in the log's place; "": none is
constexpr std::string_view kEnvironmentPlatform = "environment";

// Whether ZENX_PLATFORM says "environment".
bool AsksEnvironment();

// ZENX_OS_VERSION, for example "6.1"; unset or empty, it is not a Windows NT system.
OsVersion OsVersionFromEnvironment();

// ZENX_RAID_LOG_DIR for the value "LogDir", as long as it fits into limit bytes with its end.
std::optional<std::string> RegistryTextFromEnvironment(std::string_view value, std::size_t limit);
