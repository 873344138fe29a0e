#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "host/hxahost/bundle/bundle.h"
#include "platform/ordinary_file.h"

namespace hxahost {

// Reads a bundle; "-" is standard input. Throws ProgramError (wrong arguments) for a file that cannot be read, has more
// bytes than the largest, or is no whole bundle.
Bundle ReadBundleFile(const std::filesystem::path& file, std::uint64_t largest = kLargestInput);

// The same from its text; the name is that of the file, for messages.
Bundle ReadNamedBundle(std::string_view text, const std::string& name);

}  // namespace hxahost
