#include "platform/ordinary_file.h"

#include <utility>

std::string LargerThan(std::uint64_t largest) { return "larger than " + std::to_string(largest >> 20U) + " MiB"; }

OrdinaryFile OpenOrdinaryFile(const std::filesystem::path& path, const char* mode, std::uint64_t largest) {
  OpenedPath opened = OpenPath(path, mode);
  if (opened.error) {
    return {nullptr, opened.error.message(), opened.error == std::errc::no_such_file_or_directory};
  }
  if (!opened.isOrdinary) return {nullptr, "it is no ordinary file"};
  if (opened.size > largest) return {nullptr, "it is " + LargerThan(largest), false, true};
  return {std::move(opened.stream), ""};
}
