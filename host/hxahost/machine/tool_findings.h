#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// Findings about the collection itself: utilities that could not be run, that hung or whose answers are incomplete,
// and entries of the plug-in's log.
Findings ToolFindings(const Machine& machine, const QueryHeader& header, const QueryResult& result);

// The utilities that are not installed and not expected, while others are installed.
std::vector<std::string_view> OptionalTools(const Expectations& expectations, const ToolRunList& runs);

// Compares the number of known controllers, published or not, with the number that answered the utilities.
Findings AnswerFindings(const QueryResult& result, std::size_t known);

}  // namespace hxahost
