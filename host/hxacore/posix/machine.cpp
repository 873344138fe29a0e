#include <array>
#include <cstdlib>
#include <ctime>

#include <sys/time.h>
#include <unistd.h>

#include "host/hxacore/operating_system.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

std::string MachineName() {
  std::array<char, 256> name{};
  if (gethostname(name.data(), name.size() - 1) != 0) throw THXAException("The machine's name cannot be read.");
  return name.data();
}

TCIMDateTime LocalTime() {
  timeval now{};
  gettimeofday(&now, nullptr);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  return {static_cast<std::uint16_t>(local.tm_year + 1900), static_cast<std::uint16_t>(local.tm_mon + 1),
          static_cast<std::uint32_t>(local.tm_mday),        static_cast<std::uint16_t>(local.tm_hour),
          static_cast<std::uint16_t>(local.tm_min),         static_cast<std::uint16_t>(local.tm_sec),
          static_cast<std::uint32_t>(now.tv_usec),          static_cast<std::int16_t>(local.tm_gmtoff / 60)};
}

}  // namespace NKVRHXA20
