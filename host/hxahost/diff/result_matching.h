#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/hxahost/result/json_result.h"

namespace hxahost {

// Which instance of one result is which of another.
struct MatchedInstances {
  std::vector<std::pair<const ResultInstance*, const ResultInstance*>> pairs;  // old and new, in the old order
  std::vector<const ResultInstance*> onlyOld;
  std::vector<const ResultInstance*> onlyNew;
};

bool IsRawText(const ResultInstance& instance);

// A link between two instances: it has no other properties than the two.
bool IsLink(const ResultInstance& instance);

// By class and keys first, the several of the same keys in their order. What is left is the same object where class and
// identity (serial numbers, names) agree and are the only ones on both sides: keys hold controller numbers and
// versions, which change when a controller is added or updated. Links follow what they link. The results must outlive
// this; raw texts are left out.
MatchedInstances MatchInstances(const JsonResult& before, const JsonResult& after);

}  // namespace hxahost
