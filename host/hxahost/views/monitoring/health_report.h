#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

// Writes the health of a machine in several formats.
namespace hxahost {

struct HealthReport {
  const QueryHeader& header;
  const QueryResult& result;
  Machine machine;
  double seconds = 0;      // the duration of the collection
  bool isVerbose = false;  // the text contains the findings below each incident
};

// For people: a summary line, then each incident with its action.
void WriteHealthText(std::ostream& out, const HealthReport& report);

// The tools that were run, and whether all of their runs succeeded.
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

// For Nagios and compatible systems: the first line of at most 200 characters has the worst incident, further lines
// have every incident; numbers follow "|" in the first line and after the last.
void WriteHealthNagios(std::ostream& out, const HealthReport& report);

// The first line if a failure leaves the health unknown.
void WriteNagiosFailure(std::ostream& out, std::string_view message);

// The rules, as a table.
void WriteHealthRules(std::ostream& out);

}  // namespace hxahost
