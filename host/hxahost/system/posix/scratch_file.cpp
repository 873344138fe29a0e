#include "host/hxahost/system/scratch_file.h"

#include <string>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

namespace hxahost {

UniqueStream OpenScratchFile(const std::filesystem::path& folder) {
  constexpr mode_t kOwnerOnly = 0600;
  int file = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kOwnerOnly);
  if (file < 0) {
    std::string name = (folder / "hxahost-XXXXXX").string();
    file = mkostemp(name.data(), O_CLOEXEC);
    if (file >= 0) unlink(name.c_str());
  }
  return UniqueStream(file < 0 ? nullptr : fdopen(file, "w+b"));
}

}  // namespace hxahost
