#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// Tables for people: faults first, then the important properties of controllers, and events; other classes only on
// request. JSON contains everything.
namespace hxahost {

void BeginTables(std::ostream& out, const QueryHeader& header);
void WriteQueryTables(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndTables(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
