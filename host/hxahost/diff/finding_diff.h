#pragma once

#include <optional>
#include <vector>

#include "host/hxahost/diff/result_matching.h"
#include "host/hxahost/machine/finding.h"
#include "host/hxahost/result/json_result.h"

// Differences between the findings of two results.
namespace hxahost {

struct FindingChange {
  std::optional<Finding> before;  // empty: it appeared
  std::optional<Finding> after;   // empty: it is gone
};

// By their severity now, the worst first; findings that are gone come last. Runs of the tools are compared only if both
// results contain them.
std::vector<FindingChange> CompareFindings(const JsonResult& before, const JsonResult& after,
                                           const MatchedInstances& matched);

}  // namespace hxahost
