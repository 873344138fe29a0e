#pragma once

#include <cstdint>
#include <filesystem>

#include "host/hxahost/result/json_result.h"
#include "platform/ordinary_file.h"

namespace hxahost {

// Reads a result to be compared: the contents of a JSON file, or the result of a query that replays a bundle. Throws
// ProgramError (wrong arguments) if the file is neither, or is larger than the largest, or if there is no room for
// temporary files.
JsonResult ReadResultOrBundle(const std::filesystem::path& file, std::uint64_t largest = kLargestInput);

}  // namespace hxahost
