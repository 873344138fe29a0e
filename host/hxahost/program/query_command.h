#pragma once

#include <functional>
#include <ostream>

#include "host/hxahost/program/options.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/system/exit_status.h"

namespace hxahost {

// Functions that show queries; each may keep data of them.
struct QueryDisplay {
  std::function<void(std::ostream& out, const QueryHeader& header)> begin;
  std::function<void(std::ostream& out, const QueryHeader& header, QueryResult& result)> query;
  std::function<void(std::ostream& out, const QueryHeader& header)> end;
  // Called for each instance when it is published, before the query; the query contains the instances for which it
  // returns true. If it is empty, the query contains all of them.
  std::function<bool(std::ostream& out, const QueryHeader& header,
                     const boost::shared_ptr<const NKVRHXA20::TPublishedInstance>& instance, unsigned query)>
      instance = {};
  bool showsPart = false;  // a replay that ended early is shown; otherwise it is a failure
};

// The outcome of the queries of one program run.
struct Collected {
  ToolRunList runs;            // of the tools
  bool hasController = false;  // a controller was described, or a drive or disk of one was published
};

// Queries like "hxahost query", with any format in the options, and passes the results to the display.
Collected RunQueries(const QueryOptions& options, const QueryDisplay& display, std::ostream& out, std::ostream& err);

// The exit status of a command: kNothingFound if there is no controller, kQueryFailed if an installed tool could not be
// started. A line on err then reports the outcome of each tool, unless out failed, which the caller reports.
ExitStatus StatusOf(const Collected& collected, const std::ostream& out, std::ostream& err);

// "hxahost query": loads the plug-in, queries it, writes the published instances to the output in the options (by
// default to out) and messages for people to err. Changes the working directory. Returns kNothingFound if there is no
// controller. Throws ProgramError.
ExitStatus RunQueryCommand(const QueryOptions& options, std::ostream& out, std::ostream& err);

}  // namespace hxahost
