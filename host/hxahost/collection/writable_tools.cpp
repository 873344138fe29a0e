#include "host/hxahost/collection/writable_tools.h"

#include <algorithm>
#include <set>
#include <system_error>

#include <fmt/core.h>

#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/file_rights.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// Limits the time if a link in the folder leads to a whole file system.
constexpr std::size_t kMostFiles = 10'000;

// The files beside the tools, in subfolders, too: tools load libraries from there.
std::vector<fs::path> EntriesBelow(const fs::path& top) {
  std::vector<fs::path> found;
  std::vector<fs::path> folders = {top};
  std::set<fs::path> seen;  // a link may form a cycle
  while (!folders.empty() && found.size() <= kMostFiles) {
    const fs::path folder = folders.back();
    folders.pop_back();
    if (!seen.insert(PlaceOf(folder)).second) continue;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
      found.push_back(entry->path());
      std::error_code unknown;
      if (entry->is_directory(unknown)) folders.push_back(entry->path());
      if (found.size() > kMostFiles) break;
    }
  }
  std::ranges::sort(found);
  return found;
}

// A link to a device is not a program.
bool IsFileOrFolder(const fs::path& path) {
  std::error_code unknown;
  return fs::is_regular_file(path, unknown) || fs::is_directory(path, unknown);
}

// In the order of the paths, each once.
std::vector<fs::path> ChangeableByOthers(const std::vector<fs::path>& paths) {
  std::vector<fs::path> unsafe;
  const auto add = [&unsafe](const fs::path& path) {
    if (std::ranges::find(unsafe, path) == unsafe.end()) unsafe.push_back(path);
  };
  for (const fs::path& path : paths) {
    if (IsFileOrFolder(path) && OthersMayWrite(path)) add(path);
    std::ranges::for_each(UnsafeFoldersOfLink(path), add);
  }
  return unsafe;
}

}  // namespace

std::vector<std::string> WritableToolsWarnings(const fs::path& directory) {
  std::error_code unknown;
  if (!fs::is_directory(directory / "zenx", unknown)) return {};
  std::vector<fs::path> paths = EntriesBelow(directory / "zenx");
  std::vector<std::string> warnings;
  if (paths.size() > kMostFiles) {
    warnings.push_back(fmt::format(
        "there are more than {} files in zenx: who may write to the others was not looked at.", kMostFiles));
  }
  paths.insert(paths.begin(), {directory, directory / "zenx"});
  const std::vector<fs::path> unsafe = ChangeableByOthers(paths);
  if (unsafe.empty()) return warnings;
  const std::string more = unsafe.size() > 1 ? fmt::format(" and {} more", unsafe.size() - 1) : "";
  warnings.push_back(fmt::format(
      "others may write to {}{}, and what they put there runs with your rights: let only administrators write there.",
      Printable(Utf8FromPath(unsafe.front())), more));
  return warnings;
}

}  // namespace hxahost
