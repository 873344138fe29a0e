#pragma once

#include <ostream>
#include <span>
#include <string_view>
#include <variant>

#include "host/hxacore/schema.h"
#include "host/hxahost/diff/diff_view.h"
#include "host/hxahost/fleet/fleet_view.h"
#include "host/hxahost/fleet/read_fleet.h"
#include "host/hxahost/result/query_result.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

// Writes queries, each as soon as it ends, so that only one is in memory at a time.
struct QueryWriter {
  void (*Begin)(std::ostream& out, const QueryHeader& header);
  void (*Query)(std::ostream& out, const QueryHeader& header, const QueryResult& result);
  void (*End)(std::ostream& out, const QueryHeader& header);
  bool hasUniquePaths = false;     // each path occurs once
  bool showsNewestEvents = false;  // and not all events of the RAID manager's log
  // Writes an instance as soon as it is published; Query then writes the rest. If it is null, Query writes everything.
  void (*Instance)(std::ostream& out, const QueryHeader& header, const NKVRHXA20::TPublishedInstance& instance,
                   const InstancePlace& place) = nullptr;
};

using HealthWriter = void (*)(std::ostream& out, const HealthReport& report);

using DiffWriter = void (*)(std::ostream& out, const ComparedFile& before, const ComparedFile& after,
                            const ResultDiff& diff, bool isVerbose);

using SchemaWriter = void (*)(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes,
                              bool withSuperclasses);

// Writes a fleet: each result as soon as it is read, or the whole at the end.
struct FleetWriter {
  void (*Begin)(std::ostream& out) = nullptr;
  RowWriters rows = {};
  void (*Whole)(std::ostream& out, const FleetView& view) = nullptr;
};

// A format of a command, and its writer.
struct Format {
  std::string_view command;
  std::string_view name;
  std::variant<QueryWriter, HealthWriter, DiffWriter, FleetWriter, SchemaWriter> writer;
};

// The formats of a command, its default first.
std::span<const Format> FormatsOf(std::string_view command);

// Null if the command has no such format.
const Format* FindFormat(std::string_view command, std::string_view name);

// The writer of a format that the command has.
template <class Writer>
const Writer& WriterOf(std::string_view command, std::string_view name) {
  return std::get<Writer>(FindFormat(command, name)->writer);
}

}  // namespace hxahost
