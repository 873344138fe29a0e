#include "host/hxahost/diff/diff_source.h"

#include <limits>
#include <string>

#include <fmt/core.h>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/system/private_folder.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

constexpr int kLimitSeconds = 600;

// The folder is "" if the system does not name it.
[[noreturn]] void RejectTemporaryFolder(const std::string& bundle, const std::string& folder, const std::string& why) {
  throw ProgramError(
      ExitStatus::kWrongArguments,
      fmt::format("{} was not replayed: the folder for temporary files{} cannot be used ({}): set TMPDIR "
                  "(on Windows TMP) to a folder with room.",
                  Printable(bundle), folder.empty() ? "" : " " + Printable(folder), Printable(why)));
}

PrivateFolder FolderForResult(const std::string& bundle) {
  std::string folder;
  try {
    folder = Utf8FromPath(fs::temp_directory_path());
    return PrivateFolder();
  } catch (const fs::filesystem_error& failure) {
    RejectTemporaryFolder(bundle, folder, failure.code() ? failure.code().message() : failure.what());
  }
}

// A plug-in collects once in a process, so each bundle is replayed by a process of its own. Its result goes through a
// file, because the output of a child process is limited.
std::string QueryThatReplays(const std::string& bundle, std::uint64_t largest) {
  const PrivateFolder folder = FolderForResult(bundle);
  const fs::path output = folder.Path() / "result.json";
  const auto result =
      NKVRHXA20::RealServices().spawn(Utf8FromPath(ProgramFile()),
                                      {"query", "--format", "json", "--runs", "--replay", bundle, "--input-limit",
                                       std::to_string(largest >> 20U), "--output", Utf8FromPath(output)},
                                      kLimitSeconds);
  // A query that finds no controller writes a result, too, and a line with the reason.
  if (result.exitStatus == 0 || result.exitStatus == static_cast<int>(ExitStatus::kNothingFound)) {
    return ReadInputFile(output, "a result", std::numeric_limits<std::uint64_t>::max());
  }
  // A message that names the folder is about the output in it.
  if (result.output.find(Utf8FromPath(folder.Path().filename())) != result.output.npos) {
    RejectTemporaryFolder(bundle, Utf8FromPath(folder.Path().parent_path()), "its result could not be written there");
  }
  throw ProgramError(ExitStatus::kWrongArguments,
                     Printable(bundle) + " cannot be replayed: " + Printable(result.output));
}

}  // namespace

JsonResult ReadResultOrBundle(const fs::path& file, std::uint64_t largest) {
  const std::string name = Utf8FromPath(file);
  const std::string text = ReadInputFile(file, "a result or a bundle", largest);
  if (!LooksLikeBundle(text)) return ParseJsonResult(text, name);
  ReadNamedBundle(text, name);  // reports an error in the bundle here, in one line
  return ParseJsonResult(QueryThatReplays(name, largest), name);
}

}  // namespace hxahost
