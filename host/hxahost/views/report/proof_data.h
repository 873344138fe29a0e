#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Where the values come from, as JSON: of each instance of which a line says a value, "lines" by property, the place of
// the raw text's instance first, then those of the lines in it; "differs" has the properties of which these lines say
// something else, "noLine" those that no line says any more. null where the raw texts were not asked for.
void WriteProofData(std::ostream& out, const QueryHeader& header, const QueryResult& result, const Machine& machine);

}  // namespace hxahost
