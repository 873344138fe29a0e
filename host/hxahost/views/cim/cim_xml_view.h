#pragma once

#include <ostream>

#include "host/hxahost/result/query_result.h"

// CIM-XML for programs that know CIM: one declaration document with a group of instances for each query, each with its
// path in the namespace root/cimv2. The log and the runs of the tools are no part of it.
//
// XML has no place for some characters: a control character stands as its picture (U+2400 and what follows), a code
// that is no character as U+FFFD. Everything else comes out of an XML parser as it went in, line ends included.
namespace hxahost {

void BeginCimXml(std::ostream& out, const QueryHeader& header);
void WriteQueryCimXml(std::ostream& out, const QueryHeader& header, const QueryResult& result);
void EndCimXml(std::ostream& out, const QueryHeader& header);

}  // namespace hxahost
