#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/ordinary_file.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// The bytes of a file, or why they are not all of it.
struct WholeFile {
  std::string bytes;    // as far as it could be read
  std::string refusal;  // "Permission denied"; of a file that was read to its end, ""
  bool isTooLarge = false;
};

// Reads an ordinary file up to where reading finds the end, not up to its size: a log may grow meanwhile, and files of
// the system have none. What holds more than so many bytes is refused.
HXACORE_API WholeFile ReadWholeFile(const std::filesystem::path& path, std::uint64_t largest = kLargestInput);

// The same of what a plug-in names. Throws THXAException with path and reason.
HXACORE_API std::string CaptureFile(const std::string& path, std::uint64_t largest = kLargestInput);

}  // namespace NKVRHXA20
