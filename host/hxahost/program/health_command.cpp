#include "host/hxahost/program/health_command.h"

#include <exception>
#include <new>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/query_command.h"
#include "host/hxahost/system/no_memory.h"

namespace hxahost {

namespace {

struct Verdict {
  Severity severity = Severity::kUnknown;
  Collected collected;
};

Verdict Examine(std::string_view command, const QueryOptions& options, std::ostream& out, std::ostream& err) {
  const auto write = WriterOf<HealthWriter>(command, options.format);
  QueryOptions query = options;
  query.classes.assign(HealthClasses().begin(), HealthClasses().end());
  Verdict verdict;
  QueryDisplay display;
  display.begin = [](std::ostream&, const QueryHeader&) {};
  display.query = [&](std::ostream& shown, const QueryHeader& header, const QueryResult& result) {
    const HealthReport report{header, result, BuildMachine(header, result), result.seconds, query.isVerbose};
    verdict.severity = WorstOf(report.machine.findings);
    write(shown, report);
  };
  display.end = [](std::ostream&, const QueryHeader&) {};
  verdict.collected = RunQueries(query, display, out, err);
  return verdict;
}

}  // namespace

Severity RunHealthCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  try {
    return Examine("health", options, out, err).severity;
  } catch (const std::bad_alloc&) {
    if (options.format == "nagios") WriteNagiosFailure(out, kNoMemory);
    throw;
  } catch (const std::exception& failure) {
    if (options.format == "nagios") WriteNagiosFailure(out, failure.what());  // it reads standard output alone
    throw;
  }
}

ExitStatus RunStatusCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  return StatusOf(Examine("status", options, out, err).collected, out, err);
}

}  // namespace hxahost
