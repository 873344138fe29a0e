#include "platform/registry.h"

#include "platform/environment_answers.h"

std::optional<std::string> ReadLocalMachineText(const char*, const char* value, std::size_t limit) {
  return RegistryTextFromEnvironment(value, limit);
}
