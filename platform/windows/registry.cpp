#include "platform/registry.h"

#include <vector>

#include <windows.h>

#include "platform/environment_answers.h"

std::optional<std::string> ReadLocalMachineText(const char* key, const char* value, std::size_t limit) {
  if (AsksEnvironment()) return RegistryTextFromEnvironment(value, limit);
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
