#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <ostream>
#include <string>

#include "host/hxahost/fleet/fleet.h"
#include "host/hxahost/terminal/layout.h"

// The whole fleet, for people and programs.
namespace hxahost {

struct FleetView {
  const Fleet& fleet;
  Layout layout = {};
  bool showAll = false;                           // also all machines with nothing wrong
  std::map<std::string, std::string> pages = {};  // links to the reports, by machine
};

// For people: the machines, the worst first, their incidents, and the facts that only their comparison shows.
void WriteFleetTable(std::ostream& out, const FleetView& view);

// For programs, format 1. Keys may be added, nothing else may change.
void WriteFleetJson(std::ostream& out, const FleetView& view);

// Metrics in the text format of Prometheus.
void WriteFleetMetrics(std::ostream& out, const FleetView& view);

// A page for browsers.
void WriteFleetPage(std::ostream& out, const FleetView& view);

// The worst state of all machines; unknown without machines, or if otherwise fine ones are stale or files are damaged.
Severity WorstOf(const Fleet& fleet);

// "200 machines: 3 critical, 1 stale; 1 damaged file"
std::string VerdictText(const Fleet& fleet);

// "3 d" for an age in seconds; "future" if the result is from the future, "?" if the age is not known.
std::string AgeText(const std::optional<std::int64_t>& seconds);

}  // namespace hxahost
