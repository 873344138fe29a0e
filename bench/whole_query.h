#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "host/hxacore/repository.h"
#include "plugin/query.h"

// One process's worth of the plug-in: every class is queried, in catalogue order, from a state of its own.
class WholeQuery {
 public:
  WholeQuery();

  // Queries; the first time this collects. Returns how many instances were published.
  std::size_t Run();

  // The same for the classes that the test picks by name; what was published of the others stays.
  std::size_t Run(const std::function<bool(std::string_view name)>& picks);

 private:
  QueryState state_;
  boost::shared_ptr<NKVRHXA20::TRepository> repository_;
  std::vector<boost::shared_ptr<NKVRHXA20::ICIMClass>> classes_;
};
