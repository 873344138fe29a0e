#include "host/hxahost/system/output_file.h"

#include <system_error>
#include <utility>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_rights.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// A link keeps pointing where it points: the file behind it is the one that is replaced.
fs::path WithoutLinks(const fs::path& path) {
  std::error_code error;
  const fs::path resolved = fs::weakly_canonical(path, error);
  return error ? path : resolved;
}

fs::path WrittenName(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::exists(status) && !fs::is_regular_file(status)) return path;
  fs::path name = path;
  name += ".";
  name += std::to_string(ProcessId());
  name += ".part";
  return name;
}

}  // namespace

OutputFile::OutputFile(const fs::path& path, std::string option)
    : option_(std::move(option)),
      path_(WithoutLinks(path)),
      written_(WrittenName(path_)),
      stream_(written_, std::ios::binary) {
  if (!stream_) {
    throw ProgramError(ExitStatus::kWrongArguments, option_ + " " + Printable(Utf8FromPath(path)) +
                                                        " cannot be written: name a file in a folder that is there "
                                                        "and that you may write to.");
  }
  if (written_ != path_) CopyRights(path_, written_);
}

OutputFile::~OutputFile() {
  if (isFinished_ || written_ == path_) return;
  stream_.close();
  std::error_code ignored;  // there is nothing left to be done about it
  fs::remove(written_, ignored);
}

void OutputFile::Finish() {
  stream_.close();
  std::error_code error;
  if (stream_ && written_ != path_) fs::rename(written_, path_, error);
  if (!stream_ || error) {
    throw ProgramError(ExitStatus::kQueryFailed, option_ + " " + Printable(Utf8FromPath(path_)) +
                                                     " could not be written: see whether there is room on the disk "
                                                     "and whether another program has the file open.");
  }
  isFinished_ = true;
}

}  // namespace hxahost
