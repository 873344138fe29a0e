#include "platform/registry.h"

#include <string_view>
#include <vector>

#include <windows.h>

#include "platform/raid_manager_key.h"
#include "platform/recorded_system.h"

std::optional<std::string> ReadLocalMachineText(const char* key, const char* value, std::size_t limit) {
  if (const RecordedSystem* const recorded = AnswersInPlace()) {
    return std::string_view(value) == kRaidLogDirValue ? recorded->raidLogDir : std::nullopt;
  }
  HKEY opened = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_READ, &opened) != ERROR_SUCCESS) return std::nullopt;
  std::vector<char> text(limit);
  auto size = static_cast<DWORD>(limit);
  const LSTATUS status =
      RegQueryValueExA(opened, value, nullptr, nullptr, reinterpret_cast<LPBYTE>(text.data()), &size);
  RegCloseKey(opened);
  if (status != ERROR_SUCCESS) return std::nullopt;
  // The registry keeps a value as it was written, with an end or without one.
  const std::string read(text.data(), size);
  const std::string upToEnd = read.substr(0, read.find('\0'));
  if (upToEnd.size() >= limit) return std::nullopt;
  return upToEnd;
}
