#include "host/hxahost/system/file_place.h"

#include <system_error>

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// Links may lead round in a circle.
constexpr int kMostLinks = 40;

}  // namespace

fs::path AbsolutePath(const fs::path& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  return error ? path : absolute;
}

fs::path PlaceOf(const fs::path& path) {
  std::error_code error;
  fs::path place = AbsolutePath(path);
  for (int links = 0; links < kMostLinks; ++links) {
    const fs::path resolved = fs::weakly_canonical(place, error);
    if (error) break;
    place = resolved;
    const fs::path target = fs::read_symlink(place, error);
    if (error) return place;  // no link
    place = place.parent_path() / target;
  }
  return AbsolutePath(path);
}

bool IsDevice(const fs::path& path) {
  std::error_code error;
  return fs::is_other(path, error);
}

bool AreOneName(const fs::path& one, const fs::path& other) { return one == other; }

}  // namespace hxahost
