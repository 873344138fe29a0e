#pragma once

#include <filesystem>

namespace hxahost {

// Loads a library permanently. Throws std::runtime_error with the system's reason.
void LoadPluginLibrary(const std::filesystem::path& file);

}  // namespace hxahost
