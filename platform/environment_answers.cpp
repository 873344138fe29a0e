#include "platform/environment_answers.h"

#include <cstdlib>

#include "platform/environment.h"
#include "platform/raid_manager_key.h"

bool AsksEnvironment() { return EnvironmentVariable(kPlatformVariable) == kEnvironmentPlatform; }

OsVersion OsVersionFromEnvironment() {
  const std::string text = EnvironmentVariable(kOsVersionVariable).value_or("");
  if (text.empty()) return {};
  OsVersion version;
  version.isWindowsNt = true;
  char* rest = nullptr;
  version.major = static_cast<unsigned>(std::strtoul(text.c_str(), &rest, 10));
  if (*rest == '.') version.minor = static_cast<unsigned>(std::strtoul(rest + 1, nullptr, 10));
  return version;
}

std::optional<std::string> RegistryTextFromEnvironment(std::string_view value, std::size_t limit) {
  if (value != kRaidLogDirValue) return std::nullopt;
  std::optional<std::string> text = EnvironmentVariable(kRaidLogDirVariable);
  if (text && text->size() >= limit) return std::nullopt;
  return text;
}
