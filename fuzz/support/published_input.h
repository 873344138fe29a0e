#pragma once

#include <string>

#include "host/hxahost/result/query_result.h"

// A query result with any texts, made from an input. Each text of the input is one part: its first character selects
// the kind (an instance of a class, a log entry, a run of a tool), the rest are the part's texts, separated by line
// feeds.
hxahost::QueryResult ReadPublished(const std::string& input);

// The header of a query for all classes, with runs and unread lines, of a machine with that name.
hxahost::QueryHeader HeaderOf(const std::string& machine);
