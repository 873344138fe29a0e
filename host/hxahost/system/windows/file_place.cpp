#include "host/hxahost/system/file_place.h"

#include <string>

#include <windows.h>

#include "host/hxahost/system/windows/path_prefix.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// "\\.\NUL" of a device; empty if the system takes it for no path, as a blank.
std::wstring FullPath(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

}  // namespace

// The C library finds nothing behind the prefix "\\?\". It is only needed by long paths, and by names that mean
// something else without it.
fs::path AbsolutePath(const fs::path& path) {
  const std::wstring full = FullPath(path);
  const std::wstring plain = WithoutPrefix(full);
  if (plain.empty()) return path;
  return plain.size() < MAX_PATH && FullPath(plain) == plain ? plain : full;
}

fs::path PlaceOf(const fs::path& path) { return AbsolutePath(path); }

bool IsDevice(const fs::path& path) { return AbsolutePath(path).native().starts_with(L"\\\\.\\"); }

// File systems do not distinguish case.
bool AreOneName(const fs::path& one, const fs::path& other) {
  return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

}  // namespace hxahost
