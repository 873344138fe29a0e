#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// JSON for programs, format 1. Programs rely on it: keys may be added, nothing else may change.
namespace hxahost {

void BeginJson(std::ostream& out, const QueryHeader& header);
void WriteInstanceJson(std::ostream& out, const QueryHeader& header, const NKVRHXA20::TPublishedInstance& instance,
                       const InstancePlace& place);
void WriteQueryJson(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndJson(std::ostream& out, const QueryHeader& header);

// JSON lines: one instance on each line, with the machine and the time, for line-oriented readers.
void BeginJsonLines(std::ostream& out, const QueryHeader& header);
void WriteInstanceJsonLine(std::ostream& out, const QueryHeader& header, const NKVRHXA20::TPublishedInstance& instance,
                           const InstancePlace& place);
void WriteQueryJsonLines(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndJsonLines(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
