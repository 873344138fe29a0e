#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// MOF for CIM repositories: every instance that was published, query by query. "hxahost schema" has the classes. The
// log and the runs of the tools are no part of it.
namespace hxahost {

void BeginMof(std::ostream& out, const QueryHeader& header);
void WriteQueryMof(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndMof(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
