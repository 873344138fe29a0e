#pragma once

#include <cstdint>

// The RAID manager's log is read where it has at most so many bytes.
std::uint64_t LargestRaidLog();
void SetLargestRaidLog(std::uint64_t bytes);

// What a plug-in offers to a host that has a limit of its own, beside the host's interface. Other hosts do not ask for
// it.
class ILimitsRaidLog {
 public:
  virtual void SetLargestRaidLog(std::uint64_t bytes) = 0;

 protected:
  ~ILimitsRaidLog() = default;
};
