#include "platform/registry.h"

#include <cstdlib>
#include <string_view>

std::optional<std::string> ReadLocalMachineText(const char*, const char* value, std::size_t limit) {
  if (std::string_view(value) != "LogDir") return std::nullopt;
  const char* const text = std::getenv("ZENX_RAID_LOG_DIR");
  if (text == nullptr || std::string_view(text).size() >= limit) return std::nullopt;
  return text;
}
