#include "host/hxahost/bundle/bundle_file.h"

#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

Bundle ReadBundleFile(const std::filesystem::path& file, std::uint64_t largest) {
  if (file == kStandardStream) return ReadNamedBundle(ReadStandardInput(largest), "Standard input");
  return ReadNamedBundle(ReadInputFile(file, "a bundle", largest), Utf8FromPath(file));
}

Bundle ReadNamedBundle(std::string_view text, const std::string& name) {
  try {
    return ReadBundle(text);
  } catch (const BundleError& reason) {
    throw ProgramError(ExitStatus::kWrongArguments, Printable(name) + " " + reason.what() + ".");
  }
}

}  // namespace hxahost
