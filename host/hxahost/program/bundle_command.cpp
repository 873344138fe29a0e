#include "host/hxahost/program/bundle_command.h"

#include <optional>
#include <utility>

#include <fmt/core.h>

#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/bundle_mask.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/result/tool_run.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/system/terminal.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

struct Item {
  std::string name;
  std::string_view bytes;
  std::string seconds;  // its duration; "-" for the log
  std::string outcome;
};

Item RunItem(const RecordedRun& run) {
  ToolRunList runs;
  const SpawnFunction repeat = [&run](const std::string&, const std::vector<std::string>&, int) { return Repeat(run); };
  try {
    SpawnAndRecord(repeat, run.path, run.arguments, run.limitSeconds, runs);
  } catch (const std::exception&) {
    // The list of runs shows its outcome, as it did after the run.
  }
  const ToolRun& read = runs.front();
  const std::string reason = read.failure.empty() ? "" : ": " + read.failure;
  return {CommandText(run), run.result.output, fmt::format("{:.3f}", run.result.seconds),
          std::string(OutcomeWord(read.outcome)) + reason};
}

Item LogItem(const RecordedLog& log) {
  return {log.path, log.bytes, "-", log.failure ? "not captured: " + log.failure->message : "ok"};
}

Item ItemOf(const Bundle& bundle, std::size_t number) {
  return number <= bundle.runs.size() ? RunItem(bundle.runs[number - 1]) : LogItem(*bundle.raidLog);
}

// Writes bytes in a form that is safe on a terminal.
void WriteReadable(std::ostream& out, std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    std::string_view line = bytes.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    out << EscapeControls(line) << "\n";
    bytes.remove_prefix(end == bytes.npos ? bytes.size() : end + 1);
  }
}

// The lines of the file up to the first item.
void ShowHeader(const Bundle& bundle, std::ostream& out) {
  Bundle header = bundle;
  header.runs.clear();
  header.raidLog.reset();
  const std::string text = WriteBundle(header);
  WriteReadable(out, std::string_view(text).substr(0, text.find("items: ")));
  out << "items: " << ItemCount(bundle) << "\n";
}

void CheckItems(const Bundle& bundle, const BundleOptions& options) {
  for (const std::size_t number : options.items) {
    if (number > ItemCount(bundle)) {
      throw ProgramError(
          ExitStatus::kWrongArguments,
          fmt::format("ITEM {}: this bundle has {}; \"hxahost bundle list\" shows them.", number, ItemCount(bundle)));
    }
  }
}

void ShowItems(const Bundle& bundle, const BundleOptions& options, std::ostream& out) {
  for (const std::size_t number : options.items) {
    const Item item = ItemOf(bundle, number);
    if (options.isRaw) {
      out << item.bytes;
    } else {
      out << number << ": " << Printable(item.name) << " (" << Printable(item.outcome) << ")\n";
      WriteReadable(out, item.bytes);
    }
  }
}

}  // namespace

void ListBundle(const BundleOptions& options, std::ostream& out) {
  const Bundle bundle = ReadBundleFile(options.file, options.inputLimit);
  out << " ITEM     BYTES   SECONDS  COMMAND (OUTCOME)\n";
  for (std::size_t number = 1; number <= ItemCount(bundle); ++number) {
    const Item item = ItemOf(bundle, number);
    out << fmt::format("{:>5}{:>10}{:>10}  {} ({})\n", number, item.bytes.size(), item.seconds, Printable(item.name),
                       Printable(item.outcome));
  }
}

void ShowBundle(const BundleOptions& options, std::ostream& out) {
  const NamedFile read{"", options.file};
  CheckOutput({"--output", options.output}, {read});
  const Bundle bundle = ReadBundleFile(options.file, options.inputLimit);
  CheckItems(bundle, options);
  if (options.isRaw && options.output.empty() && StandardOutputIsTerminal()) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--raw could give commands to this terminal: leave it out, or name a file with --output.");
  }
  std::optional<OutputFile> file;
  if (!options.output.empty()) file.emplace(options.output);
  std::ostream& shown = file ? file->Stream() : out;
  if (options.items.empty()) ShowHeader(bundle, shown);
  ShowItems(bundle, options, shown);
  if (file) file->Finish();
}

void MaskBundleFile(const BundleOptions& options, std::ostream& out) {
  const NamedFile read{"IN", options.file};
  CheckOutput({"OUT", options.output}, {read});
  Bundle bundle = ReadBundleFile(options.file, options.inputLimit);
  std::optional<OutputFile> file;
  if (!options.output.empty()) file.emplace(options.output, "OUT");
  WriteBundle(file ? file->Stream() : out, MaskBundle(std::move(bundle), SystemRandom(), options.mask));
  if (file) file->Finish();
}

}  // namespace hxahost
