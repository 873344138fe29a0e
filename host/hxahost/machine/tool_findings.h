#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// What is wrong with the collection itself: utilities that could not be run, that hung or whose answers are not whole,
// and what the plug-in's log says of it.
Findings ToolFindings(const Machine& machine, const QueryHeader& header, const QueryResult& result);

// The utilities that are not installed although others are, and that nobody expects.
std::vector<std::string_view> OptionalTools(const Expectations& expectations, const ToolRunList& runs);

// Whether as many controllers are known, published or not, as described themselves to the utilities.
Findings AnswerFindings(const QueryResult& result, std::size_t known);

}  // namespace hxahost
