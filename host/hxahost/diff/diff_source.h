#pragma once

#include <cstdint>
#include <filesystem>

#include "host/hxahost/result/json_result.h"
#include "platform/ordinary_file.h"

namespace hxahost {

// A result to be compared: what a file of JSON holds, or what a query gives that replays a bundle. Throws ProgramError
// (wrong arguments) where the file is neither, or has more bytes than the largest.
JsonResult ReadResultOrBundle(const std::filesystem::path& file, std::uint64_t largest = kLargestInput);

}  // namespace hxahost
