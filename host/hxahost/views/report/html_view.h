#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// One HTML file for people: self-contained, with the last query's JSON in it and a script that shows it.
namespace hxahost {

void BeginHtml(std::ostream& out, const QueryHeader& header);
void WriteQueryHtml(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndHtml(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
