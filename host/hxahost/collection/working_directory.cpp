#include "host/hxahost/collection/working_directory.h"

#include <system_error>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

void CheckWorkingDirectory() {
  std::error_code error;
  const fs::path here = fs::current_path(error);
  if (here.empty()) {
    throw ProgramError(ExitStatus::kQueryFailed, "The working directory is gone or cannot be read (" +
                                                     Printable(error.message()) + "): start hxahost in another one.");
  }
}

void EnterDirectory(const fs::path& directory) {
  std::error_code error;
  if (!directory.empty()) fs::current_path(AbsolutePath(directory), error);
  if (error) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--directory " + Printable(Utf8FromPath(directory)) +
                           " cannot be entered: name the folder that has the folder zenx with the tools in it.");
  }
}

}  // namespace hxahost
