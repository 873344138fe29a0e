#pragma once

#include <filesystem>

#include "host/hxahost/result/json_result.h"

namespace hxahost {

// A result to be compared: what a file of JSON holds, or what a query gives that replays a bundle. Throws ProgramError
// (wrong arguments) where the file is neither.
JsonResult ReadResultOrBundle(const std::filesystem::path& file);

}  // namespace hxahost
