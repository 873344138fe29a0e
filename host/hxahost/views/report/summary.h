#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

// The beginning of the report, as HTML without a script.
namespace hxahost {

// The title of the report.
void WriteTitleHtml(std::ostream& out, const QueryHeader& header);

// The time and machine of the collection.
void WriteOriginHtml(std::ostream& out, const QueryHeader& header);

// The verdict, all disks by controller, and the incidents with their actions. "#object-17" leads to the instance 17.
void WriteSummaryHtml(std::ostream& out, const QueryHeader& header, const Machine& machine);

// Parts that other pages share: the symbol of a level, a summary line, and an incident with its action, whose list item
// is not closed. The links are HTML.
std::string SymbolHtml(Level level);
void WriteVerdictHtml(std::ostream& out, Level level, std::string_view words);
void WriteIncidentHtml(std::ostream& out, const Incident& incident, const std::string& links);

}  // namespace hxahost
