#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// What the report needs beside the query's JSON, as JSON:
// - when, where and for which classes the tools were run, and how many queries there were;
// - the tables with their columns;
// - the objects of the machine with their controllers, members and levels;
// - what properties are made of, by class and property ("origins"), where there are words on it;
// - what the severities of log records mean ("eventLevels");
// - the findings: "instance" is the place of the instance that a finding is about;
// - the classes that health is read from but that were not asked for ("unjudged");
// - the lines of the raw texts that no property shows ("unread"), null where not all classes were asked for.
void WriteReportData(std::ostream& out, const QueryHeader& header, const QueryResult& result);

}  // namespace hxahost
