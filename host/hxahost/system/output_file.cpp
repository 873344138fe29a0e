#include "host/hxahost/system/output_file.h"

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

constexpr std::string_view kPart = ".part";

// The number of the process that writes the file of this name: "result.json.4711.part" of "result.json".
std::optional<unsigned long> WriterOf(std::string_view name, std::string_view written) {
  if (!name.starts_with(written) || !name.ends_with(kPart)) return std::nullopt;
  const std::size_t begin = written.size() + 1;
  const std::size_t end = name.size() - kPart.size();
  unsigned long number = 0;
  if (begin >= end || name[begin - 1] != '.') return std::nullopt;
  const auto [stop, error] = std::from_chars(name.data() + begin, name.data() + end, number);
  return error == std::errc() && stop == name.data() + end ? std::optional(number) : std::nullopt;
}

// Removes the files that killed programs left, but not those of running programs.
void RemoveAbandoned(const fs::path& path) {
  const std::string written = Utf8FromPath(path.filename());
  const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
    const auto writer = WriterOf(Utf8FromPath(entry->path().filename()), written);
    std::error_code ignored;
    if (writer && !IsProcessRunning(*writer) && fs::is_regular_file(entry->symlink_status(ignored))) {
      fs::remove(entry->path(), ignored);
    }
  }
}

fs::path NameMeanwhile(const fs::path& path) {
  fs::path name = path;
  name += "." + std::to_string(ProcessId()) + std::string(kPart);
  return name;
}

std::string InBrackets(const std::string& reason) { return reason.empty() ? "" : " (" + Printable(reason) + ")"; }

}  // namespace

void RejectOutput(const std::string& option, const fs::path& path, const std::string& reason) {
  throw ProgramError(ExitStatus::kWrongArguments,
                     option + " " + Printable(Utf8FromPath(path)) + " cannot be written" + InBrackets(reason) +
                         ": name a file in a folder that is there and that you may write to.");
}

OutputFile::OutputFile(const fs::path& path, std::string option)
    : option_(std::move(option)), path_(PlaceOf(path)), stream_(nullptr) {
  if (!path_.has_root_directory()) RejectOutput(option_, path, "");  // on Windows, a blank is no name
  std::error_code error;
  if (IsDevice(path_) || fs::is_directory(path_, error)) {
    if (device_.open(path_, std::ios::out | std::ios::binary) != nullptr) stream_.rdbuf(&device_);
  } else {
    stream_.rdbuf(file_.emplace(NameMeanwhile(path_), path_).Buffer());
  }
  if (!stream_) RejectOutput(option_, path, file_ ? file_->Failure() : "");
  if (file_) RemoveAbandoned(path_);
}

void OutputFile::Finish() {
  stream_.flush();
  const bool hasRoom = stream_ && (file_ || device_.close() != nullptr);
  if (hasRoom && (!file_ || file_->Finish())) return;
  const char* const cause =
      hasRoom ? "another program has made a folder of that name or has the file open" : "there is room on the disk";
  throw ProgramError(ExitStatus::kQueryFailed, option_ + " " + Printable(Utf8FromPath(path_)) +
                                                   " could not be written" + InBrackets(file_ ? file_->Failure() : "") +
                                                   ": see whether " + cause + ".");
}

}  // namespace hxahost
