#include <array>
#include <chrono>
#include <cstdlib>
#include <ctime>

#include <unistd.h>

#include "host/hxacore/operating_system.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

// In minutes, in a CIM date and time. The variable TZ can say more.
constexpr long kLargestOffset = 999;

}  // namespace

std::string MachineName() {
  std::array<char, 256> name{};
  if (gethostname(name.data(), name.size() - 1) != 0) throw THXAException("The machine's name cannot be read.");
  return name.data();
}

TCIMDateTime LocalTime() {
  const auto now = std::chrono::system_clock::now();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(now);
  const auto microseconds = std::chrono::floor<std::chrono::microseconds>(now - seconds).count();
  const std::time_t time = std::chrono::system_clock::to_time_t(seconds);
  tm local{};
  localtime_r(&time, &local);
  if (std::abs(local.tm_gmtoff / 60) > kLargestOffset) gmtime_r(&time, &local);
  return {static_cast<std::uint16_t>(local.tm_year + 1900), static_cast<std::uint16_t>(local.tm_mon + 1),
          static_cast<std::uint32_t>(local.tm_mday),        static_cast<std::uint16_t>(local.tm_hour),
          static_cast<std::uint16_t>(local.tm_min),         static_cast<std::uint16_t>(local.tm_sec),
          static_cast<std::uint32_t>(microseconds),         static_cast<std::int16_t>(local.tm_gmtoff / 60)};
}

}  // namespace NKVRHXA20
