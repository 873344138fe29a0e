#include "host/hxahost/system/file_place.h"

#include <windows.h>

namespace hxahost {

// File systems do not distinguish case.
bool AreOneName(const std::filesystem::path& one, const std::filesystem::path& other) {
  return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

}  // namespace hxahost
