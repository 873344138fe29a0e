#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The sources of values, as JSON. Each instance with a value that a line contains has "lines" by property: the place of
// the raw text's instance, then the places of the lines in it. "differs" lists properties whose lines contain another
// value, "noLine" those whose line is missing. null if the raw texts were not queried.
void WriteProofData(std::ostream& out, const QueryHeader& header, const QueryResult& result, const Machine& machine);

}  // namespace hxahost
