#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/ordinary_file.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// The bytes of a file, and the reason if they are incomplete.
struct WholeFile {
  std::string bytes;    // as far as they could be read
  std::string refusal;  // "Permission denied"; "" if the file was read to its end
  bool isTooLarge = false;
};

// Reads an ordinary file up to its end, not up to its size: a log may grow during reading, and files of the system have
// no size. A larger file is rejected.
HXACORE_API WholeFile ReadWholeFile(const std::filesystem::path& path, std::uint64_t largest = kLargestInput);

// The same for a path from a plug-in. Throws THXAException with path and reason.
HXACORE_API std::string CaptureFile(const std::string& path, std::uint64_t largest = kLargestInput);

}  // namespace NKVRHXA20
