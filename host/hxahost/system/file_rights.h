#pragma once

#include <filesystem>

namespace hxahost {

// Whether somebody other than the administrators and the user of this program may change a file, or what lies in a
// folder. False where the system does not say.
bool OthersMayWrite(const std::filesystem::path& path);

}  // namespace hxahost
