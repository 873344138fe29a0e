#pragma once

#include <optional>
#include <string_view>

namespace hxahost {

// The value from which on a count is a warning; empty: never.
struct Limits {
  std::optional<unsigned> hardErrors = 1;
  std::optional<unsigned> softErrors = 10;
  std::optional<unsigned> parityErrors = 10;
  std::optional<unsigned> slowTransfer = 1;  // by how much a disk's transfer period exceeds its shortest
  std::optional<unsigned> batteryDays = 30;  // how long a message about a battery is a warning
};

struct LimitName {
  std::string_view name;  // on the command line
  std::optional<unsigned> Limits::*limit;
  std::string_view meaning;
};

inline constexpr LimitName kLimitNames[] = {
    {"hard-errors",   &Limits::hardErrors,   "hard errors of a disk"                          },
    {"soft-errors",   &Limits::softErrors,   "soft errors of a disk"                          },
    {"parity-errors", &Limits::parityErrors, "parity errors of a disk"                        },
    {"slow-transfer", &Limits::slowTransfer, "steps that a disk's transfer period is too long"},
    {"battery-days",  &Limits::batteryDays,  "days that a logged battery message is a warning"},
};

}  // namespace hxahost
