#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Instances as rows for spreadsheets and programs (RFC 4180): one header row, then a row for each instance with the
// columns of all queried classes. If there are several classes, the first column is the class. Each element of an
// array is a line of its cell. A cell that a spreadsheet would read as a formula begins with an apostrophe.
namespace hxahost {

void BeginCsv(std::ostream& out, const QueryHeader& header);
void WriteInstanceCsv(std::ostream& out, const QueryHeader& header, const NKVRHXA20::TPublishedInstance& instance,
                      const InstancePlace& place);
void WriteQueryCsv(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndCsv(std::ostream& out, const QueryHeader& header);

// One such row of the given texts.
void WriteCsvCells(std::ostream& out, const std::vector<std::string>& texts);

}  // namespace hxahost
