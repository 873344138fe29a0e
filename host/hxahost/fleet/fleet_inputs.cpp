#include "host/hxahost/fleet/fleet_inputs.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "host/hxahost/diff/diff_source.h"
#include "host/hxahost/system/exit_status.h"
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

// A folder that cannot be read counts as empty.
std::vector<fs::path> FilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code failure;
  fs::recursive_directory_iterator file(folder, fs::directory_options::skip_permission_denied, failure);
  for (const fs::recursive_directory_iterator end; !failure && file != end; file.increment(failure)) {
    std::error_code gone;
    if (file->is_regular_file(gone) && IsResultName(file->path())) files.push_back(file->path());
  }
  std::ranges::sort(files);
  return files;
}

bool HasJsonLines(const fs::path& file, std::uint64_t largest) {
  if (!fs::is_regular_file(file)) return false;  // opening a pipe may block for ever
  std::ifstream stream(file, std::ios::binary);
  std::string line;
  return ReadLineUpTo(stream, largest, line) && line.size() <= largest && IsInstanceLine(line);
}

}  // namespace

FleetInputs::FleetInputs(const std::vector<fs::path>& paths, std::uint64_t largest) : largest_(largest) {
  for (const fs::path& path : paths) {
    if (!fs::exists(path)) {
      throw ProgramError(ExitStatus::kWrongArguments,
                         Printable(Utf8FromPath(path)) + " is not there: name results, bundles or folders of them.");
    }
    if (fs::is_directory(path)) {
      std::ranges::move(FilesIn(path), std::back_inserter(files_));
    } else {
      files_.push_back(path);
    }
  }
}

std::optional<FleetInput> FleetInputs::NextLines() {
  if (reader_) {
    if (auto lines = reader_->Next()) {
      const fs::path& file = files_[next_ - 1];
      return FleetInput{Utf8FromPath(file), file, std::move(lines), largest_};
    }
  }
  reader_.reset();
  return std::nullopt;
}

std::optional<FleetInput> FleetInputs::Next() {
  if (auto lines = NextLines()) return lines;
  if (next_ == files_.size()) return std::nullopt;
  const fs::path& file = files_[next_++];
  if (!HasJsonLines(file, largest_)) return FleetInput{Utf8FromPath(file), file, std::nullopt, largest_};
  lines_ = std::ifstream(file, std::ios::binary);
  reader_.emplace(lines_, largest_);
  return NextLines();
}

JsonResult ReadFleetInput(const FleetInput& input) {
  return input.lines ? ParseJsonLines(*input.lines, input.name) : ReadResultOrBundle(input.file, input.largest);
}

}  // namespace hxahost
