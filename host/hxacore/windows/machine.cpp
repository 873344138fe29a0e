#include <array>

#include <windows.h>

#include "host/hxacore/operating_system.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

std::string MachineName() {
  std::array<char, MAX_COMPUTERNAME_LENGTH + 1> name{};
  auto size = static_cast<DWORD>(name.size());
  if (!GetComputerNameA(name.data(), &size)) throw THXAException("The machine's name cannot be read.");
  return name.data();
}

TCIMDateTime LocalTime() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  TIME_ZONE_INFORMATION zone{};
  const DWORD season = GetTimeZoneInformation(&zone);
  const LONG seasonBias = season == TIME_ZONE_ID_DAYLIGHT ? zone.DaylightBias : zone.StandardBias;
  const LONG bias = zone.Bias + (season == TIME_ZONE_ID_UNKNOWN ? 0 : seasonBias);
  return {now.wYear,
          now.wMonth,
          now.wDay,
          now.wHour,
          now.wMinute,
          now.wSecond,
          now.wMilliseconds * 1000U,
          static_cast<std::int16_t>(-bias)};
}

}  // namespace NKVRHXA20
