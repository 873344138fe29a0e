#include "tools/hrconf/os_version_60.h"

namespace hrconf {

bool IsOsVersion60(HostHandle host, OsVersion (*getVersion)()) {
  try {
    const OsVersion version = getVersion();
    return version.isWindowsNt && version.major == 6 && version.minor == 0;
  } catch (...) {
    Log(host, kLogSevere,
        "Can not get OS version from GetVersionEx(), please report the issue to customer service to fix it!");
    return false;
  }
}

}  // namespace hrconf
