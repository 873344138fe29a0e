#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"
#include "host/hxahost/result/tool_run.h"

// What the runs of each utility came to, so that a machine without controllers is not taken for one that could not be
// read.
namespace hxahost {

// Runs that went wrong in the same way.
struct ToolTrouble {
  Outcome outcome = Outcome::kFailed;
  std::string reason;        // printable
  std::string firstCommand;  // "getconfig 1 al"
  std::size_t times = 0;
};

struct ToolSummary {
  std::string tool;
  std::size_t runs = 0;    // that were made
  std::size_t reused = 0;  // answers that were given from memory
  double seconds = 0;
  std::vector<int> controllers;  // the utility's own numbers that answered to every "getconfig"
  std::vector<int> refused;      // the numbers that it says it does not have
  std::vector<ToolTrouble> troubles;
};

// One for each utility in the order in which they are run, also for one that was not.
std::vector<ToolSummary> SummarizeRuns(const ToolRunList& runs);

// "arcconf: 24 runs, 2 controllers (1, 2), numbers 3-8 refused, 3.1 s"
std::string SummaryText(const ToolSummary& summary);

// "timed out, 2 runs, the first getconfig 1 al: ..."
std::string TroubleText(const ToolTrouble& trouble);

// A line for each utility, and below it one for each trouble.
void WriteToolSummaries(std::ostream& out, const QueryHeader& header, const QueryResult& result);

}  // namespace hxahost
