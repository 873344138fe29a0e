#include "host/hxahost/collection/query_paths.h"

#include <system_error>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

fs::path FromHere(const std::string& path) { return path.empty() ? fs::path() : fs::absolute(PathFromUtf8(path)); }

}  // namespace

QueryPaths ReadPaths(const QueryOptions& options) {
  if (!options.log.empty() && FromHere(options.log) == FromHere(options.output)) {
    throw ProgramError(ExitStatus::kWrongArguments, "--log and --output name one file: name two.");
  }
  return {options.plugin.empty() ? ProgramFolder() / "zenx.pi" : FromHere(options.plugin), FromHere(options.log),
          FromHere(options.output), FromHere(options.record), FromHere(options.replay)};
}

void CheckWorkingDirectory() {
  std::error_code error;
  const fs::path here = fs::current_path(error);
  if (here.empty()) {
    throw ProgramError(ExitStatus::kQueryFailed, "The working directory is gone or cannot be read (" +
                                                     Printable(error.message()) + "): start hxahost in another one.");
  }
}

void EnterDirectory(const std::string& directory) {
  std::error_code error;
  if (!directory.empty()) fs::current_path(PathFromUtf8(directory), error);
  if (error) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--directory " + Printable(directory) +
                           " cannot be entered: name the folder that has the folder zenx with the tools in it.");
  }
}

}  // namespace hxahost
