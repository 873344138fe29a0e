#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/hxahost/result/json_result.h"

namespace hxahost {

// Pairs the instances of one result with the same objects in another.
struct MatchedInstances {
  std::vector<std::pair<const ResultInstance*, const ResultInstance*>> pairs;  // old and new, in the old order
  std::vector<const ResultInstance*> onlyOld;
  std::vector<const ResultInstance*> onlyNew;
};

bool IsRawText(const ResultInstance& instance);

// A link between two instances: it has only the two properties that name them.
bool IsLink(const ResultInstance& instance);

// Pairs by class and keys first; instances with equal keys are paired in their order. Of the others, two are the same
// object if class and identity (serial numbers, names) agree and are unique on both sides: keys contain controller
// numbers and versions, which change when a controller is added or updated. Links follow the objects that they link.
// The results must outlive this; raw texts are left out.
MatchedInstances MatchInstances(const JsonResult& before, const JsonResult& after);

}  // namespace hxahost
