#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// Tables for people: what matters of each instance; of raw texts and associations how many there are. JSON has all of
// it.
namespace hxahost {

void BeginTables(std::ostream& out, const QueryHeader& header);
void WriteQueryTables(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndTables(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
