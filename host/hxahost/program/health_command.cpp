#include "host/hxahost/program/health_command.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <new>
#include <optional>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/kept_events.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/query_command.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/no_memory.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/views/json/json_view.h"

namespace hxahost {

namespace {

struct Verdict {
  Severity severity = Severity::kUnknown;
  bool isWhole = false;  // every utility answered completely
  Collected collected;
};

// The result for --save-baseline.
class Baseline {
 public:
  explicit Baseline(const std::filesystem::path& path) {
    if (!path.empty()) file_.emplace(AbsolutePath(path), "--save-baseline");
  }

  void Add(const QueryHeader& header, const NKVRHXA20::TPublishedInstance& instance) {
    if (!file_) return;
    if (written_ == 0) BeginJson(file_->Stream(), header);
    WriteInstanceJson(file_->Stream(), header, instance, {1, written_++});
  }

  void End(QueryHeader header, const QueryResult& result) {
    if (!file_) return;
    header.withRuns = true;
    if (written_ == 0) BeginJson(file_->Stream(), header);
    QueryResult rest = result;
    rest.instances.clear();
    rest.written = written_;
    WriteQueryJson(file_->Stream(), header, rest);
    EndJson(file_->Stream(), header);
  }

  // Objects that are unknown now would not be missed later, so only a complete result is saved.
  void Finish(bool isWhole, std::ostream& err) {
    if (!file_) return;
    if (isWhole) return file_->Finish();
    err << "hxahost: --save-baseline: nothing was saved, because not every tool answered." << std::endl;
  }

 private:
  std::optional<OutputFile> file_;
  std::size_t written_ = 0;
};

bool IsWhole(const Machine& machine) {
  return std::ranges::none_of(machine.findings, [](const Finding& each) { return each.className == kToolRun; });
}

Verdict Examine(std::string_view command, const QueryOptions& options, std::ostream& out, std::ostream& err) {
  const auto write = WriterOf<HealthWriter>(command, options.format);
  QueryOptions query = options;
  query.classes.assign(HealthClasses().begin(), HealthClasses().end());
  Baseline saved(options.saveBaseline);
  Verdict verdict;
  QueryDisplay display;
  display.begin = [](std::ostream&, const QueryHeader&) {};
  KeptEvents events(0);
  display.instance = [&](std::ostream&, const QueryHeader& header, const auto& instance, unsigned) {
    saved.Add(header, *instance);
    return !events.Take(header, instance);
  };
  display.query = [&](std::ostream& shown, const QueryHeader& header, QueryResult& result) {
    events.PutInto(result);
    const HealthReport report{header, result, BuildMachine(header, result), result.seconds, query.isVerbose};
    verdict.severity = WorstOf(report.machine.findings);
    verdict.isWhole = IsWhole(report.machine);
    write(shown, report);
    saved.End(header, result);
  };
  display.end = [](std::ostream&, const QueryHeader&) {};
  display.showsPart = true;
  verdict.collected = RunQueries(query, display, out, err);
  saved.Finish(verdict.isWhole, err);
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
    if (options.format == "nagios") WriteNagiosFailure(out, failure.what());  // it reads only standard output
    throw;
  }
}

ExitStatus RunStatusCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  return StatusOf(Examine("status", options, out, err).collected, out, err);
}

}  // namespace hxahost
