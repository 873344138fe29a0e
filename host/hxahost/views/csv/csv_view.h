#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Instances as rows for spreadsheets and programs (RFC 4180): one header row, then a row for each instance with the
// columns of all classes that were asked for. Where these are several, the first column is the class. The elements of
// an array are the lines of a cell. A cell that a spreadsheet would take for a formula has an apostrophe in front.
namespace hxahost {

void BeginCsv(std::ostream& out, const QueryHeader& header);
void WriteQueryCsv(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndCsv(std::ostream& out, const QueryHeader& header);

// One such row of any texts.
void WriteCsvCells(std::ostream& out, const std::vector<std::string>& texts);

}  // namespace hxahost
