#include "host/hxahost/system/scratch_file.h"

#include <string>

#include "host/hxahost/system/this_program.h"

namespace hxahost {

// "D": Windows deletes the file when it is closed; "T": it stays in memory if possible; "N": utilities do not inherit
// it.
UniqueStream OpenScratchFile(const std::filesystem::path& folder) {
  const std::filesystem::path name = folder / ("hxahost-" + std::to_string(ProcessId()) + ".part");
  return UniqueStream(_wfopen(name.c_str(), L"w+bTDN"));
}

}  // namespace hxahost
