#include "platform/os_version.h"

#include <windows.h>

#include "platform/recorded_system.h"

OsVersion GetOsVersion() {
  if (const RecordedSystem* const recorded = AnswersInPlace()) return recorded->version;
  OSVERSIONINFOEXA version = {};
  auto* const basic = reinterpret_cast<OSVERSIONINFOA*>(&version);
  version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOEXA);
  if (!GetVersionExA(basic)) {
    version.dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);
    if (!GetVersionExA(basic)) return {};
  }
  return {version.dwPlatformId == VER_PLATFORM_WIN32_NT, version.dwMajorVersion, version.dwMinorVersion};
}
