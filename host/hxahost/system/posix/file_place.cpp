#include "host/hxahost/system/file_place.h"

namespace hxahost {

bool AreOneName(const std::filesystem::path& one, const std::filesystem::path& other) { return one == other; }

}  // namespace hxahost
