#include "host/hxahost/diff/diff_source.h"

#include <limits>
#include <string>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/system/private_folder.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

constexpr int kLimitSeconds = 600;

// A plug-in collects once in a process, so each bundle is replayed by a process of its own. Its result goes through a
// file, because the output of a child process is limited.
std::string QueryThatReplays(const std::filesystem::path& bundle, std::uint64_t largest) {
  const PrivateFolder folder;
  const std::filesystem::path output = folder.Path() / "result.json";
  const auto result = NKVRHXA20::RealServices().spawn(
      Utf8FromPath(ProgramFile()),
      {"query", "--format", "json", "--runs", "--replay", Utf8FromPath(bundle), "--input-limit",
       std::to_string(largest >> 20U), "--output", Utf8FromPath(output)},
      kLimitSeconds);
  // A query that finds no controller writes a result, too, and a line with the reason.
  if (result.exitStatus == 0 || result.exitStatus == static_cast<int>(ExitStatus::kNothingFound)) {
    return ReadInputFile(output, "a result", std::numeric_limits<std::uint64_t>::max());
  }
  throw ProgramError(ExitStatus::kWrongArguments,
                     Printable(Utf8FromPath(bundle)) + " cannot be replayed: " + Printable(result.output));
}

}  // namespace

JsonResult ReadResultOrBundle(const std::filesystem::path& file, std::uint64_t largest) {
  const std::string name = Utf8FromPath(file);
  const std::string text = ReadInputFile(file, "a result or a bundle", largest);
  if (!LooksLikeBundle(text)) return ParseJsonResult(text, name);
  ReadNamedBundle(text, name);  // reports an error in the bundle here, in one line
  return ParseJsonResult(QueryThatReplays(file, largest), name);
}

}  // namespace hxahost
