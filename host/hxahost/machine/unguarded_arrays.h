#pragma once

#include <set>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The disks of logical drives that are not guarded against the next failed disk. Which disks a logical drive lies on
// is known from its own list of drives or from the stripe order of its array; a disk that stands in no list is taken
// to lie on any logical drive of its controller.
class UnguardedArrays {
 public:
  // unguarded: the logical drives in question. all: everything that was published.
  UnguardedArrays(const InstanceList& unguarded, const InstanceList& all);

  bool Has(const NKVRHXA20::TPublishedInstance& disk) const;

 private:
  std::set<std::string> controllers_;  // that have such a logical drive
  std::set<std::string> unguarded_;    // disks, as controller, blank, channel, comma, number
  std::set<std::string> placed_;       // disks that stand in the list of any logical drive
};

}  // namespace hxahost
