#pragma once

#include <functional>
#include <ostream>

#include "host/hxahost/program/options.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/system/exit_status.h"

namespace hxahost {

// What shows queries, as a View does; each may keep something of what it sees.
struct QueryDisplay {
  std::function<void(std::ostream& out, const QueryHeader& header)> begin;
  std::function<void(std::ostream& out, const QueryHeader& header, const QueryResult& result)> query;
  std::function<void(std::ostream& out, const QueryHeader& header)> end;
  bool showsPart = false;  // what a replay gave that ended early; otherwise that is a failure
};

// What came of the queries of one run of the program.
struct Collected {
  ToolRunList runs;            // of the tools
  bool hasController = false;  // a controller was described, or something that belongs to one was published
};

// Queries as "hxahost query" does, whatever format the options name, and has the display show it.
Collected RunQueries(const QueryOptions& options, const QueryDisplay& display, std::ostream& out, std::ostream& err);

// What a command ends with: kNothingFound where there is no controller, kQueryFailed where a tool that is there could not
// be started. A line on err then says what became of the tools, unless out failed: then that is what is said.
ExitStatus StatusOf(const Collected& collected, const std::ostream& out, std::ostream& err);

// "hxahost query": loads the plug-in, queries it, writes what it publishes to the output that the options name (out
// where they name none) and what a person should know meanwhile to err. Changes the working directory. Gives
// kNothingFound where there is no controller. Throws ProgramError.
ExitStatus RunQueryCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
