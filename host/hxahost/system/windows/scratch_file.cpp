#include "host/hxahost/system/scratch_file.h"

#include <string>

#include "host/hxahost/system/this_program.h"

namespace hxahost {

// "D": Windows deletes it with its handle; "T": it stays in memory where there is room; "N": utilities do not inherit
// it.
UniqueStream OpenScratchFile(const std::filesystem::path& folder) {
  const std::filesystem::path name = folder / ("hxahost-" + std::to_string(ProcessId()) + ".part");
  return UniqueStream(_wfopen(name.c_str(), L"w+bTDN"));
}

}  // namespace hxahost
