#include "host/hxahost/program/health_command.h"

#include "host/hxahost/machine/health.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/query_command.h"

namespace hxahost {

Severity RunHealthCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  const auto write = WriterOf<HealthWriter>("health", options.format);
  QueryOptions query = options;
  query.classes.assign(HealthClasses().begin(), HealthClasses().end());
  Severity worst = Severity::kUnknown;
  QueryDisplay display;
  display.begin = [](std::ostream&, const QueryHeader&) {};
  display.query = [&](std::ostream& shown, const QueryHeader& header, const QueryResult& result) {
    const HealthReport report{header, result, BuildMachine(header, result), result.seconds};
    worst = WorstOf(report.machine.findings);
    write(shown, report);
  };
  display.end = [](std::ostream&, const QueryHeader&) {};
  RunQueries(query, display, out, err);
  return worst;
}

}  // namespace hxahost
