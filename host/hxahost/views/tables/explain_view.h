#pragma once

#include <ostream>
#include <vector>

#include "host/hxahost/machine/object_search.h"
#include "host/hxahost/proof/proof.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// An object's values, grouped by the text that each was read from, with the number of its line.
void WriteExplanation(std::ostream& out, const Layout& layout, const InstanceList& instances, const NamedObject& named,
                      const std::vector<Proof>& proofs);

}  // namespace hxahost
