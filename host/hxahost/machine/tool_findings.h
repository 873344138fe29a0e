#pragma once

#include <cstddef>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// What is wrong with the collection itself: utilities that could not be run, that hung or whose answers are not whole,
// and what the plug-in's log says of it.
Findings ToolFindings(const QueryResult& result);

// Whether as many controllers are known, published or not, as described themselves to the utilities.
Findings AnswerFindings(const QueryResult& result, std::size_t known);

}  // namespace hxahost
