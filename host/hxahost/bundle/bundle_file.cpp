#include "host/hxahost/bundle/bundle_file.h"

#include <fstream>
#include <string>

#include "host/hxacore/whole_file.h"
#include "host/hxahost/bundle/bundle_format.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

[[noreturn]] void RejectBundle(const fs::path& file, const std::string& why) {
  throw ProgramError(ExitStatus::kWrongArguments, Printable(Utf8FromPath(file)) + " " + why + ".");
}

}  // namespace

Bundle ReadBundleFile(const fs::path& file) {
  std::string text;
  if (!NKVRHXA20::ReadWholeFile(file, text)) RejectBundle(file, "cannot be read: name a bundle that is there");
  try {
    return ReadBundle(text);
  } catch (const BundleError& reason) {
    RejectBundle(file, reason.what());
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
