#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Writes the sections that have an instance.
void WriteRecordSections(std::ostream& out, const Layout& layout, const InstanceList& instances);

}  // namespace hxahost
