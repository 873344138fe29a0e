#pragma once

#include <ostream>

#include "host/hxahost/query_result.h"

namespace hxahost {

// What the report's page needs beside the query's JSON, as JSON: when, where and for which classes the tools were run,
// how many queries there were, and the tables with their columns. A page that finds "findings" (an array of objects
// with severity, identifier and text) shows them at its top.
void WriteReportData(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
