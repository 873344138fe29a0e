#pragma once

#include <string>

#include "host/hxahost/result/query_result.h"

// What a query gave, made of an input, with anything in its texts. Each text of the input is one part: its first
// character chooses what of (an instance of a class, an entry of the log, a run of a tool), the rest are the part's
// texts, with line feeds between them.
hxahost::QueryResult ReadPublished(const std::string& input);

// The header of a query for all classes, with runs and unread lines, of a machine with that name.
hxahost::QueryHeader HeaderOf(const std::string& machine);
