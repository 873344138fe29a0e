#pragma once

#include <cstddef>
#include <optional>
#include <string>

// The text value of a key under the local machine's root. Nothing when key or value cannot be read, or when the value
// does not fit into limit bytes with its end. Systems without a registry take the value "LogDir" from
// the environment's ZENX_RAID_LOG_DIR, whatever the key, and have no other.
std::optional<std::string> ReadLocalMachineText(const char* key, const char* value, std::size_t limit);
