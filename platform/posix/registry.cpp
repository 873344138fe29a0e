#include "platform/registry.h"

#include <cstdlib>
#include <string_view>

#include "platform/raid_manager_key.h"
#include "platform/recorded_system.h"

std::optional<std::string> ReadLocalMachineText(const char*, const char* value, std::size_t limit) {
  if (std::string_view(value) != kRaidLogDirValue) return std::nullopt;
  if (const RecordedSystem* const recorded = AnswersInPlace()) return recorded->raidLogDir;
  const char* const text = std::getenv("ZENX_RAID_LOG_DIR");
  if (text == nullptr || std::string_view(text).size() >= limit) return std::nullopt;
  return text;
}
