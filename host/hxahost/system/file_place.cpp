#include "host/hxahost/system/file_place.h"

#include <system_error>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

std::string Text(const NamedFile& file) {
  return (file.option.empty() ? "" : file.option + " ") + Printable(Utf8FromPath(file.path));
}

// A standard stream, a device or a pipe may be named more than once.
bool IsFile(const NamedFile& file) {
  return !file.path.empty() && file.path != kStandardStream && !IsDevice(file.path);
}

}  // namespace

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
