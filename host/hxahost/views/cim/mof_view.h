#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// MOF for CIM repositories: every instance that was published, query by query, with aliases for those that references
// name. "hxahost schema" has the classes; with superclasses they are declared before the instances. The log and the
// runs of the tools are no part of it. A date and time that there is none of is NULL, and comments name the instances
// that are left out.
namespace hxahost {

void BeginMof(std::ostream& out, const QueryHeader& header);
void WriteQueryMof(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndMof(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
