#pragma once

#include <cstddef>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"

// A host that takes instances and keeps nothing, so that what is measured is the plug-in alone. It holds no instances,
// so nothing is linked.
class IdleHost final : public NKVRHXA20::ICIMNamespace {
 public:
  boost::shared_ptr<NKVRHXA20::ICIMClass> GetClass(const std::string& name,
                                                   const NKVRHXA20::TPropertyMap& context) override;

  // How many instances were committed.
  std::size_t Committed() const { return committed_; }

 private:
  std::size_t committed_ = 0;
};
