#pragma once

#include <ostream>

#include <nlohmann/json.hpp>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// What the report needs beside the query's JSON, as JSON:
// - the program, and the classes that were asked for;
// - the tables with their columns;
// - the levels with their symbols and words, the worst first;
// - the objects of the machine with their controllers, members and levels, and the title and lines of their boxes;
// - what properties are made of, by class and property ("origins"), where there are words on it;
// - what the severities of log records mean ("eventLevels");
// - how many events are shown of how many ("eventNote"), where it is not all of them;
// - the findings: "instance" is the place of the instance that a finding is about;
// - the lines of the raw texts that no property shows ("unread"), null where not all classes were asked for.
void WriteReportData(std::ostream& out, const QueryHeader& header, const QueryResult& result, const Machine& machine);

// The levels with their symbols and words, the worst first.
nlohmann::ordered_json LevelsJson();

}  // namespace hxahost
