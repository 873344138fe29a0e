#include "host/hxahost/system/file_place.h"

#include <system_error>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// Links may lead round in a circle.
constexpr int kMostLinks = 40;

std::string Text(const NamedFile& file) {
  return (file.option.empty() ? "" : file.option + " ") + Printable(Utf8FromPath(file.path));
}

// A standard stream, a device or a pipe may be named more than once.
bool IsFile(const NamedFile& file) {
  std::error_code error;
  return !file.path.empty() && file.path != kStandardStream && !fs::is_other(file.path, error);
}

}  // namespace

fs::path PlaceOf(const fs::path& path) {
  std::error_code error;
  fs::path place = fs::absolute(path, error);
  for (int links = 0; !error && links < kMostLinks; ++links) {
    const fs::path resolved = fs::weakly_canonical(place, error);
    if (error) break;
    place = resolved;
    const fs::path target = fs::read_symlink(place, error);
    if (error) return place;  // no link
    place = place.parent_path() / target;
  }
  return path;
}

bool LeadToOneFile(const fs::path& one, const fs::path& other) {
  std::error_code error;
  if (fs::equivalent(one, other, error)) return true;
  const fs::path place = PlaceOf(one);
  const fs::path otherPlace = PlaceOf(other);
  return AreOneName(place.filename(), otherPlace.filename()) &&
         fs::equivalent(place.parent_path(), otherPlace.parent_path(), error);
}

void CheckOutput(const NamedFile& output, const std::vector<NamedFile>& others) {
  if (!IsFile(output)) return;
  for (const NamedFile& other : others) {
    if (!IsFile(other) || !LeadToOneFile(output.path, other.path)) continue;
    throw ProgramError(ExitStatus::kWrongArguments,
                       Text(other) + " and " + Text(output) + " are one file: give each output a file of its own.");
  }
}

}  // namespace hxahost
