#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// MOF for CIM repositories: every instance that was published, query by query, with aliases for those that are
// referenced. "hxahost schema" writes the classes; with superclasses they are declared before the instances. The log
// and the runs of the tools are left out. An impossible date and time is NULL, and comments name the instances that are
// left out.
namespace hxahost {

void BeginMof(std::ostream& out, const QueryHeader& header);
void WriteQueryMof(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndMof(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
