#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

// What everybody sees first, as HTML that needs no script.
namespace hxahost {

// The name of the report.
void WriteTitleHtml(std::ostream& out, const QueryHeader& header);

// When and where it was collected.
void WriteOriginHtml(std::ostream& out, const QueryHeader& header);

// The verdict, all disks by controller, and the incidents with what to do. "#object-17" leads to the instance 17.
void WriteSummaryHtml(std::ostream& out, const QueryHeader& header, const Machine& machine);

// Parts that other pages share: the symbol of a level, a line that sums up, and an incident with what to do, its list
// item still open. The links are HTML.
std::string SymbolHtml(Level level);
void WriteVerdictHtml(std::ostream& out, Level level, std::string_view words);
void WriteIncidentHtml(std::ostream& out, const Incident& incident, const std::string& links);

}  // namespace hxahost
