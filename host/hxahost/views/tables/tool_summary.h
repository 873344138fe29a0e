#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"
#include "host/hxahost/result/tool_run.h"

// Summaries of each utility's runs, which show whether a machine has no controllers or could not be read.
namespace hxahost {

// Runs that failed in the same way.
struct ToolTrouble {
  Outcome outcome = Outcome::kFailed;
  std::string reason;        // printable
  std::string firstCommand;  // "getconfig 1 al"
  std::size_t times = 0;
};

struct ToolSummary {
  std::string tool;
  std::size_t runs = 0;    // started
  std::size_t reused = 0;  // answers taken from memory
  double seconds = 0;
  std::vector<int> controllers;  // the utility's own numbers for which every "getconfig" was answered
  std::vector<int> refused;      // numbers for which it reports no controller
  std::vector<ToolTrouble> troubles;
};

// One for each utility in the order in which they run, also for one that was not run.
std::vector<ToolSummary> SummarizeRuns(const ToolRunList& runs);

// "arcconf: 24 runs, 2 controllers (1, 2), numbers 3-8 refused, 3.1 s"
std::string SummaryText(const ToolSummary& summary);

// "timed out, 2 runs, the first getconfig 1 al: ..."
std::string TroubleText(const ToolTrouble& trouble);

// A line for each utility, and below it one for each trouble.
void WriteToolSummaries(std::ostream& out, const QueryHeader& header, const QueryResult& result);

}  // namespace hxahost
