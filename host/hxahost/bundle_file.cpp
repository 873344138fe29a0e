#include "host/hxahost/bundle_file.h"

#include <fstream>
#include <iterator>
#include <string>

#include "host/hxahost/bundle_format.h"
#include "host/hxahost/exit_status.h"
#include "host/hxahost/text.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

[[noreturn]] void Reject(const fs::path& file, const std::string& why) {
  throw ProgramError(ExitStatus::kWrongArguments, Printable(Utf8FromPath(file)) + " " + why + ".");
}

}  // namespace

Bundle ReadBundleFile(const fs::path& file) {
  std::error_code unknown;
  std::ifstream stream(file, std::ios::binary);
  if (!stream || fs::is_directory(file, unknown)) Reject(file, "cannot be read: name a bundle that is there");
  const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  try {
    return ReadBundle(text);
  } catch (const BundleError& reason) {
    Reject(file, reason.what());
  }
}

bool IsBundleFile(const fs::path& file) {
  std::error_code unknown;
  if (fs::is_directory(file, unknown)) return false;
  std::ifstream stream(file, std::ios::binary);
  std::string start(bundle_format::kMagic.size(), '\0');
  return stream.read(start.data(), static_cast<std::streamsize>(start.size())) && LooksLikeBundle(start);
}

}  // namespace hxahost
