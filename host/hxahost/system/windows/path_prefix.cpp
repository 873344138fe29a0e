#include "host/hxahost/system/windows/path_prefix.h"

#include "host/hxahost/system/file_place.h"

namespace hxahost {

std::wstring WithoutPrefix(const std::wstring& path) {
  constexpr std::size_t kShort = 4;
  constexpr std::size_t kLong = 8;
  if (AreOneName(path.substr(0, kLong), L"\\\\?\\UNC\\")) return L"\\\\" + path.substr(kLong);
  return path.starts_with(L"\\\\?\\") ? path.substr(kShort) : path;
}

}  // namespace hxahost
