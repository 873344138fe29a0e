#include "host/hxahost/program/query_command.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <functional>
#include <iterator>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "host/hxacore/schema.h"
#include "host/hxahost/collection/class_dependencies.h"
#include "host/hxahost/collection/collection.h"
#include "host/hxahost/collection/working_directory.h"
#include "host/hxahost/diff/diff_source.h"
#include "host/hxahost/machine/kept_events.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/query_output.h"
#include "host/hxahost/result/answers.h"
#include "host/hxahost/result/unique_paths.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/schema/class_words.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/terminal/terminal_layout.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

using namespace NKVRHXA20;
namespace fs = std::filesystem;

namespace hxahost {

namespace {

// The declared names, in the order queried; every class that the plug-in publishes if none was named.
std::vector<std::string> DeclaredNames(const std::vector<std::string>& asked) {
  std::vector<std::string> names;
  for (const std::string& word : asked) std::ranges::copy(ClassesCalled(word), std::back_inserter(names));
  if (!asked.empty()) return names;
  for (const ClassDeclaration& declaration : PublishedClasses()) names.emplace_back(declaration.name);
  return names;
}

// A result may replace the baseline that it was compared with.
void CheckFiles(const QueryOptions& options) {
  const CollectionOptions& collection = options.collection;
  const NamedFile replay{"--replay", collection.replay};
  const NamedFile plugin{"--plugin", collection.plugin};
  const NamedFile baseline{"--baseline", options.baseline};
  const NamedFile output{"--output", options.output};
  const NamedFile log{"--log", collection.log};
  const NamedFile record{"--record", collection.record};
  const NamedFile saved{"--save-baseline", options.saveBaseline};
  CheckOutput(output, {replay, plugin, baseline});
  CheckOutput(log, {replay, plugin, baseline, output});
  CheckOutput(record, {replay, plugin, baseline, output, log});
  CheckOutput(saved, {replay, plugin, output, log, record});
}

std::shared_ptr<const JsonResult> ReadBaseline(const fs::path& file) {
  if (file.empty()) return nullptr;
  return std::make_shared<JsonResult>(ReadResultOrBundle(file));
}

// Masked serial numbers cannot be compared with those of an unmasked result.
void CheckBaseline(const QueryHeader& header, const fs::path& file) {
  if (!header.expectations.baseline || header.expectations.baseline->isMasked == header.isMasked) return;
  throw ProgramError(ExitStatus::kWrongArguments,
                     "--baseline " + Printable(Utf8FromPath(file)) +
                         " cannot be compared: serial numbers are masked in it or in this collection. Name one that is "
                         "masked as this collection is.");
}

// The header of all queries, with the options of the command line.
QueryHeader HeaderOf(const Collection& collection, const QueryOptions& options) {
  QueryHeader header = collection.Header(DeclaredNames(options.classes));
  header.queryCount = options.repeat;
  header.withRuns = options.showRuns;
  header.withUnread = options.showUnread;
  header.showAll = options.showAll || !options.classes.empty();  // a class that is named is shown
  header.isVerbose = options.isVerbose;
  header.limits = options.limits;
  header.expectations = options.expectations;
  header.withSuperclasses = options.withSuperclasses;
  header.layout = LayoutFor(WishesOf(options));
  return header;
}

// Paths on the command line are relative to the directory where the program started, not to that of the tools.
QueryOptions WithAbsolutePaths(const QueryOptions& typed) {
  QueryOptions options = typed;
  CollectionOptions& collection = options.collection;
  for (fs::path* const path : {&collection.plugin, &collection.log, &collection.record, &collection.replay,
                               &options.output, &options.baseline, &options.saveBaseline}) {
    if (!path->empty() && *path != kStandardStream) *path = AbsolutePath(*path);
  }
  return options;
}

// An incomplete report may describe a controller, too.
bool HasObject(const InstanceList& instances) {
  return std::ranges::any_of(instances, [](const auto& instance) {
    const std::string_view name = instance->Class().name;
    return name == kControllerClass || name == kLogicalDiskClass || name == kDiskDriveClass;
  });
}

// Passes each instance to the display.
TRepository::TKeeps Watch(const QueryDisplay& display, std::ostream& out, const QueryHeader& header, unsigned number) {
  if (!display.instance) return {};
  return [&display, &out, &header, number](const auto& instance) {
    return display.instance(out, header, instance, number);
  };
}

// Writes each instance as soon as it is published, if the format can do so, and each path once if the format wants
// that.
class InstanceStream {
 public:
  InstanceStream(const QueryWriter& writer, std::ostream& err) : writer_(writer), err_(err) {}

  bool Take(std::ostream& out, const QueryHeader& header, const boost::shared_ptr<const TPublishedInstance>& instance,
            unsigned query) {
    Begin(out, header, query);
    Add(out, header, instance, query);
    return instance->Class().name != kEventClass;  // there may be millions, and nothing refers to them
  }

  void End(std::ostream& out, const QueryHeader& header, QueryResult& result) {
    Begin(out, header, result.number);
    QueryResult rest = result;
    rest.instances = std::exchange(held_, {});
    rest.written = std::exchange(written_, 0);
    rest.leftOut = std::exchange(leftOut_, {});
    hasBegun_ = false;
    writer_.Query(out, header, rest);
  }

 private:
  using Instance = boost::shared_ptr<const TPublishedInstance>;

  void Begin(std::ostream& out, const QueryHeader& header, unsigned query) {
    if (!std::exchange(hasBegun_, true) && writer_.hasUniquePaths && header.system)
      Add(out, header, header.system, query);
  }

  void Add(std::ostream& out, const QueryHeader& header, const Instance& instance, unsigned query) {
    const auto path = writer_.hasUniquePaths ? paths_.Add(*instance) : UniquePaths::Path::kNew;
    if (path == UniquePaths::Path::kTaken) {
      leftOut_.push_back(LeftOutText(*instance));
      err_ << "hxahost: " << leftOut_.back() << std::endl;
    } else if (path == UniquePaths::Path::kNew && writer_.Instance != nullptr) {
      writer_.Instance(out, header, *instance, {query, written_++});
    } else if (path == UniquePaths::Path::kNew) {
      held_.push_back(instance);
    }
  }

  const QueryWriter& writer_;
  std::ostream& err_;
  UniquePaths paths_;
  bool hasBegun_ = false;
  std::size_t written_ = 0;
  InstanceList held_;
  std::vector<std::string> leftOut_;
};

[[noreturn]] void RejectBundle(const std::string& missing) {
  throw ProgramError(ExitStatus::kQueryFailed,
                     "The bundle does not hold what the plug-in asks for: " + Printable(missing) +
                         ". Record it again with this version of the plug-in.");
}

}  // namespace

Collected RunQueries(const QueryOptions& typed, const QueryDisplay& display, std::ostream& out, std::ostream& err) {
  CheckWorkingDirectory();
  CheckFiles(typed);
  QueryOptions options = WithAbsolutePaths(typed);
  for (const std::string& line : MissingDependencies(DeclaredNames(options.classes))) {
    err << "hxahost: " << line << std::endl;
  }
  options.expectations.baseline = ReadBaseline(options.baseline);
  EnterDirectory(options.collection.directory);
  QueryOutput output(options, out);
  Collection collection(options.collection, err);
  Collected collected;
  try {
    const QueryHeader header = HeaderOf(collection, options);
    CheckBaseline(header, typed.baseline);
    display.begin(output.Stream(), header);
    for (unsigned number = 1; number <= header.queryCount; ++number) {
      QueryResult result = collection.Query(header, number, Watch(display, output.Stream(), header, number));
      if (!result.notRecorded.empty() && !display.showsPart) RejectBundle(result.notRecorded);
      display.query(output.Stream(), header, result);
      collected.runs.insert(collected.runs.end(), result.runs.begin(), result.runs.end());
      collected.hasController |= HasController(result.runs) || HasObject(result.instances);
    }
    display.end(output.Stream(), header);
    collection.Finish();
    output.Stream().flush();
  } catch (const ProgramError&) {
    throw;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& failure) {
    collection.SaveRecording(out);  // a failed collection needs the bundle most
    throw ProgramError(ExitStatus::kQueryFailed,
                       "The query failed: " + Printable(failure.what()) + ". --log FILE shows how far it came." +
                           (output.IsFile() ? "" : " What was written before this is not whole."));
  }
  output.Finish();
  collection.SaveRecording(out);
  return collected;
}

ExitStatus StatusOf(const Collected& collected, const std::ostream& out, std::ostream& err) {
  const ToolRunList& runs = collected.runs;
  const auto failed = std::ranges::find(runs, Outcome::kNotStarted, &ToolRun::outcome);
  const bool isWhole = failed == runs.end();
  if ((collected.hasController && isWhole) || !out) return ExitStatus::kDone;
  std::string_view found = "Not all is shown";
  std::string advice = "Tools belong into a folder zenx; name the folder above it with --directory.";
  if (!collected.hasController && HasAnswer(runs)) {
    found = "No controller was found";
    advice = "--log FILE shows what was asked.";
  } else if (!collected.hasController) {
    found = "No tool answered";
  }
  if (!isWhole) advice = failed->failure + ".";
  const std::string answers = runs.empty() ? "none was run" : AnswersText(runs);
  err << "hxahost: " << found << ": " << answers << ". " << advice << std::endl;
  return collected.hasController ? ExitStatus::kQueryFailed : ExitStatus::kNothingFound;
}

ExitStatus RunQueryCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  const auto& writer = WriterOf<QueryWriter>("query", options.format);
  QueryDisplay display{writer.Begin, writer.Query, writer.End};
  InstanceStream stream(writer, err);
  KeptEvents events(kNewestEvents);
  const bool needsAll = options.showUnread;  // unread lines are found from all instances together
  if (writer.hasUniquePaths || (writer.Instance != nullptr && !needsAll)) {
    display.instance = std::bind_front(&InstanceStream::Take, &stream);
    display.query = std::bind_front(&InstanceStream::End, &stream);
  } else if (writer.showsNewestEvents && !needsAll) {
    display.instance = [&](std::ostream&, const QueryHeader& header, const auto& instance, unsigned) {
      return !events.Take(header, instance);
    };
    display.query = [&](std::ostream& shown, const QueryHeader& header, QueryResult& result) {
      events.PutInto(result);
      writer.Query(shown, header, result);
    };
  }
  return StatusOf(RunQueries(options, display, out, err), out, err);
}

}  // namespace hxahost
