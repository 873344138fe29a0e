#include "platform/os_version.h"

#include <cstdlib>

#include "platform/recorded_system.h"

OsVersion GetOsVersion() {
  if (const RecordedSystem* const recorded = AnswersInPlace()) return recorded->version;
  const char* const text = std::getenv("ZENX_OS_VERSION");
  if (text == nullptr || *text == '\0') return {};
  OsVersion version;
  version.isWindowsNt = true;
  char* rest = nullptr;
  version.major = static_cast<unsigned>(std::strtoul(text, &rest, 10));
  if (*rest == '.') version.minor = static_cast<unsigned>(std::strtoul(rest + 1, nullptr, 10));
  return version;
}
