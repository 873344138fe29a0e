#pragma once

#include <ostream>

#include <nlohmann/json.hpp>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The data of the report in addition to the query's JSON, as JSON:
// - the program, and the queried classes;
// - the tables with their columns;
// - the levels with their symbols and words, the worst first;
// - the objects of the machine with their controllers, members and levels, and the title and lines of their boxes;
// - the origins of properties in words, by class and property ("origins"), if there are any;
// - the levels of the severities of log records ("eventLevels");
// - a sentence with the numbers of events ("eventNote"), if not all are shown;
// - the findings: "instance" is the place of the instance that a finding is about;
// - the lines of the raw texts that no property shows ("unread"), null unless all classes were queried.
void WriteReportData(std::ostream& out, const QueryHeader& header, const QueryResult& result, const Machine& machine);

// The levels with their symbols and words, the worst first.
nlohmann::ordered_json LevelsJson();

}  // namespace hxahost
