#pragma once

#include <optional>
#include <vector>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/diff/result_matching.h"

// What the rules of health find in one of two results and not, or otherwise, in the other.
namespace hxahost {

struct FindingChange {
  std::optional<Finding> before;  // nothing: it appeared
  std::optional<Finding> after;   // nothing: it is gone
};

// By how bad it is now, the worst first; what is gone comes last. How the runs of the tools went is compared where both
// results tell it.
std::vector<FindingChange> CompareFindings(const JsonResult& before, const JsonResult& after,
                                           const MatchedInstances& matched);

}  // namespace hxahost
