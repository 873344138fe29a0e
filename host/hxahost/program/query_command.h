#pragma once

#include <functional>
#include <ostream>

#include "host/hxahost/program/options.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// What shows queries, as a View does; each may keep something of what it sees.
struct QueryDisplay {
  std::function<void(std::ostream& out, const QueryHeader& header)> begin;
  std::function<void(std::ostream& out, const QueryHeader& header, const QueryResult& result)> query;
  std::function<void(std::ostream& out, const QueryHeader& header)> end;
};

// Queries as "hxahost query" does, whatever format the options name, and has the display show it.
void RunQueries(const QueryOptions& options, const QueryDisplay& display, std::ostream& out, std::ostream& err);

// "hxahost query": loads the plug-in, queries it, writes what it publishes to the output that the options name (out
// where they name none) and what a person should know meanwhile to err. Changes the working directory. Throws
// ProgramError.
void RunQueryCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
