#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// Tables for people: what is wrong, then what matters of each controller and event; of all else only on request. JSON
// has all of it.
namespace hxahost {

void BeginTables(std::ostream& out, const QueryHeader& header);
void WriteQueryTables(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndTables(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
