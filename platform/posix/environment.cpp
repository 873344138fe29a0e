#include "platform/environment.h"

#include <cstdlib>

std::optional<std::string> EnvironmentVariable(const char* name) {
  const char* const text = std::getenv(name);
  return text == nullptr ? std::nullopt : std::optional<std::string>(text);
}
