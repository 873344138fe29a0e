#include "platform/ask_os_version.h"

OsVersion AskOsVersion(HostHandle host, OsVersion (*ask)()) {
  try {
    return ask();
  } catch (...) {
    Log(host, kLogSevere,
        "Can not get OS version from GetVersionEx(), please report the issue to customer service to fix it!");
    return {};
  }
}
