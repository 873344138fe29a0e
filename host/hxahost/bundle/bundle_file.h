#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "host/hxahost/bundle/bundle.h"
#include "platform/ordinary_file.h"

namespace hxahost {

// Reads a bundle; "-" is standard input. Throws ProgramError (wrong arguments) if the file cannot be read, is larger
// than the largest, or is not a complete bundle.
Bundle ReadBundleFile(const std::filesystem::path& file, std::uint64_t largest = kLargestInput);

// The same from its text; messages contain the name of the file.
Bundle ReadNamedBundle(std::string_view text, const std::string& name);

}  // namespace hxahost
