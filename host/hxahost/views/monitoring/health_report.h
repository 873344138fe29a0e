#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

// How the health of a machine is shown.
namespace hxahost {

struct HealthReport {
  const QueryHeader& header;
  const QueryResult& result;
  Machine machine;
  double seconds = 0;      // that the collection took
  bool isVerbose = false;  // the text has the findings below each incident
};

// For people: a line that sums up, then each incident with what to do.
void WriteHealthText(std::ostream& out, const HealthReport& report);

// The tools that were run, and whether nothing went wrong with them.
struct ToolHealth {
  std::string_view tool;
  bool isUp = false;
  bool isInstalled = true;
};

std::vector<ToolHealth> ToolHealthOf(const HealthReport& report);

// "5 controllers, 12 logical drives, 44 devices"
std::string Inventory(const Machine& machine);

// For programs, format 1: the model. Keys may be added, nothing else may change.
void WriteHealthJson(std::ostream& out, const HealthReport& report);

// Metrics in the text format of Prometheus, as its node exporter reads them from a file *.prom.
void WriteHealthMetrics(std::ostream& out, const HealthReport& report);

// For Nagios and its relatives: the first line of at most 200 characters has the worst incident, further lines all of
// them; numbers follow "|" in the first and after the last.
void WriteHealthNagios(std::ostream& out, const HealthReport& report);

// The first line where a failure leaves the health unknown.
void WriteNagiosFailure(std::ostream& out, std::string_view message);

// The rules, as a table.
void WriteHealthRules(std::ostream& out);

}  // namespace hxahost
