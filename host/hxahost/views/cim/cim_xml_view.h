#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// CIM-XML for programs that know CIM: one declaration document with a group of instances for each query, each with its
// path in the namespace root/cimv2. The log and the runs of the tools are no part of it. A date and time that there is
// none of has no value there, and comments name the instances that are left out.
//
// XML has no place for some characters (text/xml_text.h). Everything else comes out of an XML parser as it went in,
// line ends included.
namespace hxahost {

void BeginCimXml(std::ostream& out, const QueryHeader& header);
void WriteQueryCimXml(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndCimXml(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
