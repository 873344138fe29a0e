#include "host/hxahost/program/fleet_command.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "host/hxacore/host_services.h"
#include "host/hxahost/fleet/fleet_pages.h"
#include "host/hxahost/fleet/read_fleet.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/query_output.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/terminal.h"
#include "host/hxahost/terminal/progress.h"
#include "host/hxahost/terminal/terminal_layout.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// The time from which ages are computed.
std::int64_t Now(const QueryOptions& options) {
  const auto& given = options.collection.localTime;
  return SecondsSince1970((given ? *given : NKVRHXA20::CurrentServices().localTime()).ToString()).value_or(0);
}

std::size_t Read(const FleetCommandOptions& options, const FleetWriter& writer, std::ostream& out, std::ostream& err,
                 Fleet& fleet) {
  FleetInputs inputs(options.paths, options.shown.collection.inputLimit);
  const auto progress = options.shown.collection.showProgress && StandardErrorIsTerminal()
                            ? std::make_unique<Progress>(err, ProgressWidth())
                            : nullptr;
  const auto begin = [&](const std::string& name) {
    if (progress) progress->Begin(name, inputs.FileCount());
  };
  return ReadFleet(inputs, options.shown.limits, writer.rows, out, fleet, begin);
}

// The next fleet would count it as a damaged file, and it might replace a result.
void CheckIsNotRead(const std::filesystem::path& output, const std::filesystem::path& folder) {
  if (output.empty() || !IsReadFrom(folder, output)) return;
  throw ProgramError(ExitStatus::kWrongArguments,
                     fmt::format("--output {} is in {}, where results are read: name a file in another folder.",
                                 Printable(Utf8FromPath(output)), Printable(Utf8FromPath(folder))));
}

void CheckFiles(const FleetCommandOptions& options) {
  std::vector<NamedFile> inputs;
  for (const std::filesystem::path& path : options.paths) inputs.push_back({"", path});
  const NamedFile output{"--output", options.shown.output};
  CheckOutput(output, inputs);
  for (const std::filesystem::path& path : options.paths) CheckIsNotRead(options.shown.output, path);
  CheckOutput({"--pages", options.pages}, {output});
}

// The page that links to the reports must not take the place of one.
void CheckPages(const FleetCommandOptions& options, const Fleet& fleet) {
  std::vector<NamedFile> pages;
  for (const auto& [machine, name] : PageNames(fleet)) pages.push_back({"--pages", options.pages / name});
  CheckOutput({"--output", options.shown.output}, pages);
}

// Returns the links to the reports.
std::map<std::string, std::string> WriteReports(const FleetCommandOptions& options, const Fleet& fleet) {
  if (options.pages.empty()) return {};
  CheckPages(options, fleet);
  FleetInputs inputs(options.paths, options.shown.collection.inputLimit);
  WritePages(inputs, options.shown.limits, fleet, options.pages);
  const std::filesystem::path& page = options.shown.output;
  const std::string folder = LinkBetween(page.empty() ? "." : page.parent_path(), options.pages);
  std::map<std::string, std::string> links = PageNames(fleet);
  for (auto& [machine, link] : links) link.insert(0, folder + "/");
  return links;
}

}  // namespace

ExitStatus RunFleetCommand(const FleetCommandOptions& options, std::ostream& out, std::ostream& err) {
  const auto& writer = WriterOf<FleetWriter>("fleet", options.shown.format);
  CheckFiles(options);
  QueryOutput output(options.shown, out);
  Fleet fleet({Now(options.shown), options.staleDays});
  if (writer.Begin != nullptr) writer.Begin(output.Stream());
  const std::size_t results = Read(options, writer, output.Stream(), err, fleet);
  const FleetView view{fleet, LayoutFor(WishesOf(options.shown)), options.shown.showAll, WriteReports(options, fleet)};
  if (writer.Whole != nullptr) writer.Whole(output.Stream(), view);
  output.Stream().flush();
  output.Finish();
  if (results > 0 || !out) return ExitStatus::kDone;
  err << "hxahost: No machine was found: name files that \"hxahost query\" wrote with --format json, --format jsonl or "
         "--record, or folders of them."
      << std::endl;
  return ExitStatus::kNothingFound;
}

}  // namespace hxahost
