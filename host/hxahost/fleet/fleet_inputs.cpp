#include "host/hxahost/fleet/fleet_inputs.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

#include <fmt/core.h>

#include "host/hxahost/diff/diff_source.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

constexpr std::array<std::string_view, 3> kExtensions = {".json", ".jsonl", ".bundle"};

bool IsResultName(const fs::path& file) {
  return std::ranges::count(kExtensions, Lower(Utf8FromPath(file.extension()))) > 0;
}

FleetInput InputOf(const fs::path& file, std::uint64_t largest) {
  return {Utf8FromPath(file), file, std::nullopt, largest};
}

// "sub cannot be listed (Permission denied)."
FleetInput Failed(const fs::path& path, std::uint64_t largest, std::string_view what, const std::string& why) {
  FleetInput input = InputOf(path, largest);
  input.failure = fmt::format("{} cannot be {} ({}).", Printable(input.name), what, Printable(why));
  return input;
}

// Finds the files in a folder and its subfolders. One folder at a time is open, however deep they are.
class Search {
 public:
  Search(fs::path folder, std::uint64_t largest) : largest_(largest), folders_{std::move(folder)} {}

  // The files, and what cannot be listed or examined, by path.
  std::vector<FleetInput> Run() {
    while (!folders_.empty()) {
      const fs::path folder = std::move(folders_.back());
      folders_.pop_back();
      List(folder);
    }
    std::ranges::sort(found_, {}, &FleetInput::file);
    return std::move(found_);
  }

 private:
  void List(const fs::path& folder) {
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
      Take(*entry);
    }
    if (failure) found_.push_back(Failed(folder, largest_, "listed", failure.message()));
  }

  void Take(const fs::directory_entry& entry) {
    const fs::path& path = entry.path();
    std::error_code failure;
    fs::file_status status = entry.symlink_status(failure);
    if (fs::is_directory(status)) {
      folders_.push_back(path);
      return;
    }
    const bool isResult = IsResultName(path);
    if (fs::is_symlink(status) && isResult) status = entry.status(failure);
    if (status.type() == fs::file_type::none) {
      found_.push_back(Failed(path, largest_, "examined", failure.message()));
    } else if (isResult && fs::is_regular_file(status)) {
      found_.push_back(InputOf(path, largest_));
    }
  }

  std::uint64_t largest_;
  std::vector<fs::path> folders_;  // not yet listed
  std::vector<FleetInput> found_;
};

// Throws ProgramError if the path does not exist.
std::vector<FleetInput> InputsAt(const fs::path& path, std::uint64_t largest) {
  std::error_code failure;
  const fs::file_status status = fs::status(path, failure);
  switch (status.type()) {
    case fs::file_type::not_found:
      throw ProgramError(ExitStatus::kWrongArguments,
                         Printable(Utf8FromPath(path)) + " is not there: name results, bundles or folders of them.");
    case fs::file_type::none: return {Failed(path, largest, "examined", failure.message())};
    case fs::file_type::directory: return Search(path, largest).Run();
    default: return {InputOf(path, largest)};
  }
}

}  // namespace

FleetInputs::FleetInputs(const std::vector<fs::path>& paths, std::uint64_t largest) : largest_(largest) {
  for (const fs::path& path : paths) std::ranges::move(InputsAt(path, largest), std::back_inserter(files_));
}

bool IsReadFrom(const fs::path& folder, const fs::path& file) {
  if (!IsResultName(file)) return false;
  std::error_code error;
  fs::path above = PlaceOf(file);
  while (above.has_relative_path()) {
    above = above.parent_path();
    if (fs::equivalent(above, folder, error)) return true;
  }
  return false;
}

// Opens the file if it contains JSON lines.
bool FleetInputs::OpenLines(const fs::path& file) {
  std::error_code failure;
  if (!fs::is_regular_file(file, failure)) return false;  // opening a pipe may block for ever
  lines_ = std::ifstream(file, std::ios::binary);
  std::string line;
  try {
    const bool isRead = ReadLineUpTo(lines_, largest_, line);
    if (!isRead || line.size() > largest_ || !IsInstanceLine(line)) return false;
  } catch (const std::ios_base::failure&) {
    return false;  // whoever reads it as a whole says why
  }
  lines_.seekg(0);
  return true;
}

std::optional<FleetInput> FleetInputs::NextLines() {
  if (!reader_) return std::nullopt;
  FleetInput input = files_[next_ - 1];
  try {
    input.lines = reader_->Next();
    if (input.lines) return input;
    reader_.reset();
    return std::nullopt;
  } catch (const std::ios_base::failure& failure) {
    reader_.reset();
    return Failed(input.file, largest_, "read to its end", failure.code().message());
  }
}

std::optional<FleetInput> FleetInputs::Next() {
  auto lines = NextLines();
  while (!lines && next_ < files_.size()) {
    const FleetInput& input = files_[next_++];
    if (!input.failure.empty() || !OpenLines(input.file)) return input;
    reader_.emplace(lines_, largest_);
    lines = NextLines();
  }
  return lines;
}

JsonResult ReadFleetInput(const FleetInput& input) {
  if (!input.failure.empty()) throw ProgramError(ExitStatus::kWrongArguments, input.failure);
  return input.lines ? ParseJsonLines(*input.lines, input.name) : ReadResultOrBundle(input.file, input.largest);
}

}  // namespace hxahost
