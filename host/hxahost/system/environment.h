#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace hxahost {

// Sets a variable of the environment for this process, and what it loads; nothing: unsets it.
void PutVariable(const char* name, const std::optional<std::string>& bytes);
void PutVariable(const char* name, const std::filesystem::path& path);

}  // namespace hxahost
