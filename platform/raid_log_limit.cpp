#include "platform/raid_log_limit.h"

#include "platform/ordinary_file.h"

namespace {

std::uint64_t& Largest() {
  static std::uint64_t bytes = kLargestInput;
  return bytes;
}

}  // namespace

std::uint64_t LargestRaidLog() { return Largest(); }

void SetLargestRaidLog(std::uint64_t bytes) { Largest() = bytes; }
