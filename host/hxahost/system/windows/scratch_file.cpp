#include "host/hxahost/system/scratch_file.h"

#include <cstdio>
#include <random>
#include <string>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

namespace hxahost {

// Windows deletes a temporary file when it is closed. It stays in memory if possible, and utilities do not inherit it.
// An existing file is never used: it may be a link that somebody else has created.
UniqueStream OpenScratchFile(const std::filesystem::path& folder) {
  constexpr int kTemporary = _O_TEMPORARY | _O_SHORT_LIVED | _O_NOINHERIT;
  const std::filesystem::path name = folder / ("hxahost-" + std::to_string(std::random_device()()) + ".part");
  const int file =
      _wsopen(name.c_str(), _O_CREAT | _O_EXCL | _O_RDWR | _O_BINARY | kTemporary, _SH_DENYRW, _S_IREAD | _S_IWRITE);
  return UniqueStream(file < 0 ? nullptr : _wfdopen(file, L"w+b"));
}

}  // namespace hxahost
