#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// Reads a bundle. Throws ProgramError (wrong arguments) for a file that cannot be read, or is no whole bundle.
Bundle ReadBundleFile(const std::filesystem::path& file);

// Whether the file is there and begins as a bundle does.
bool IsBundleFile(const std::filesystem::path& file);

}  // namespace hxahost
