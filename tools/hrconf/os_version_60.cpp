#include "tools/hrconf/os_version_60.h"

#include "platform/ask_os_version.h"

namespace hrconf {

bool IsOsVersion60(HostHandle host, OsVersion (*getVersion)()) {
  const OsVersion version = AskOsVersion(host, getVersion);
  return version.isWindowsNt && version.major == 6 && version.minor == 0;
}

}  // namespace hrconf
