#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// CIM-XML for programs that read CIM: one declaration document with a group of instances for each query, each with its
// path in the namespace root/cimv2. It does not contain the log and the runs of the tools. An impossible date and time
// has no value, and comments name the instances that are left out.
//
// XML does not permit some characters (text/xml_text.h). An XML parser returns all other text unchanged, line ends
// included.
namespace hxahost {

void BeginCimXml(std::ostream& out, const QueryHeader& header);
void WriteInstanceCimXml(std::ostream& out, const QueryHeader& header, const NKVRHXA20::TPublishedInstance& instance,
                         const InstancePlace& place);
void WriteQueryCimXml(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndCimXml(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
