#include "host/hxahost/collection/writable_tools.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/system/file_rights.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// The files beside the tools count as they do: tools load libraries from their own folder.
std::vector<fs::path> WhatMustBeSafe(const fs::path& directory) {
  std::vector<fs::path> paths = {directory, directory / "zenx"};
  std::error_code failure;
  for (fs::directory_iterator entry(paths.back(), failure), end; !failure && entry != end; entry.increment(failure)) {
    std::error_code unknown;
    if (entry->is_regular_file(unknown)) paths.push_back(entry->path());
  }
  std::sort(paths.begin() + 2, paths.end());
  return paths;
}

}  // namespace

std::string WritableToolsWarning(const fs::path& directory) {
  std::error_code unknown;
  if (!fs::is_directory(directory / "zenx", unknown)) return "";
  std::vector<fs::path> paths = WhatMustBeSafe(directory);
  std::erase_if(paths, [](const fs::path& path) { return !OthersMayWrite(path); });
  if (paths.empty()) return "";
  const std::string more = paths.size() > 1 ? fmt::format(" and {} more", paths.size() - 1) : "";
  return fmt::format(
      "others may write to {}{}, and what they put there runs with your rights: let only administrators write there.",
      Printable(Utf8FromPath(paths.front())), more);
}

}  // namespace hxahost
