#pragma once

#include <stdexcept>
#include <string>

#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// What every host service throws when it cannot do what it was asked for. what() names the thing and the reason.
class HXACORE_API THXAException : public std::runtime_error {
 public:
  explicit THXAException(const std::string& message);
  ~THXAException() override;
};

}  // namespace NKVRHXA20
