#pragma once

#include <ostream>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/query_result.h"

// How the health of a machine is shown.
namespace hxahost {

struct HealthReport {
  const QueryHeader& header;
  const QueryResult& result;
  Machine machine;
  double seconds = 0;  // that the collection took
};

// For people: a line that sums up, then one line for each finding.
void WriteHealthText(std::ostream& out, const HealthReport& report);

// For programs, format 1. Keys may be added, nothing else may change.
void WriteHealthJson(std::ostream& out, const HealthReport& report);

// Metrics in the text format of Prometheus, as its node exporter reads them from a file *.prom.
void WriteHealthMetrics(std::ostream& out, const HealthReport& report);

// The rules, as a table.
void WriteHealthRules(std::ostream& out);

}  // namespace hxahost
