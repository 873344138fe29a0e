#include "host/hxahost/health_command.h"

#include <chrono>

#include "host/hxahost/health.h"
#include "host/hxahost/health_views.h"
#include "host/hxahost/query_command.h"

namespace hxahost {

Severity RunHealthCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  using Clock = std::chrono::steady_clock;
  const HealthView& view = *FindHealthView(options.format);
  QueryOptions query = options;
  query.classes.assign(HealthClasses().begin(), HealthClasses().end());
  Severity worst = Severity::kUnknown;
  Clock::time_point began;
  QueryDisplay display;
  display.begin = [&began](std::ostream&, const QueryHeader&) { began = Clock::now(); };
  display.query = [&](std::ostream& shown, const QueryHeader& header, const QueryResult& result) {
    const std::chrono::duration<double> seconds = Clock::now() - began;
    const HealthReport report{header, result, EvaluateHealth(header, result), seconds.count()};
    worst = WorstOf(report.findings);
    view.Write(shown, report);
  };
  display.end = [](std::ostream&, const QueryHeader&) {};
  RunQueries(query, display, out, err);
  return worst;
}

}  // namespace hxahost
