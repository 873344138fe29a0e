#include "host/hxahost/program/query_command.h"

#include <chrono>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxacore/repository.h"
#include "host/hxahost/collection/class_dependencies.h"
#include "host/hxahost/collection/collection_lock.h"
#include "host/hxahost/collection/plugin.h"
#include "host/hxahost/collection/query_log.h"
#include "host/hxahost/collection/query_paths.h"
#include "host/hxahost/collection/session_services.h"
#include "host/hxahost/collection/session_tape.h"
#include "host/hxahost/collection/writable_tools.h"
#include "host/hxahost/program/query_output.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/terminal.h"
#include "host/hxahost/terminal/progress.h"
#include "host/hxahost/terminal/terminal_layout.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/views.h"

using namespace NKVRHXA20;
namespace fs = std::filesystem;

namespace hxahost {

namespace {

// The declared names, in the order asked for; all that the plug-in publishes where none was asked for.
std::vector<std::string> DeclaredNames(const std::vector<std::string>& asked) {
  std::vector<std::string> names;
  for (const std::string& name : asked) {
    const ClassDeclaration* const declaration = FindClass(name);
    if (declaration == nullptr) {
      throw ProgramError(ExitStatus::kWrongArguments,
                         "--class " + Printable(name) + " is not known: \"hxahost classes\" lists what there is.");
    }
    names.emplace_back(declaration->name);
  }
  if (!asked.empty()) return names;
  for (const ClassDeclaration& declaration : PublishedClasses()) names.emplace_back(declaration.name);
  return names;
}

std::vector<boost::shared_ptr<ICIMClass>> Classes(ICIMNamespace& nameSpace, const std::vector<std::string>& names) {
  std::vector<boost::shared_ptr<ICIMClass>> classes;
  for (const std::string& name : names) classes.push_back(nameSpace.GetClass(name, {}));
  return classes;
}

// Where the tools are run, or were when they were recorded.
std::string ToolDirectory(const SessionTape& tape) {
  return tape.Played() != nullptr ? tape.Played()->directory : Utf8FromPath(fs::current_path());
}

std::optional<std::uint16_t> OsType(const QueryOptions& options, const SessionTape& tape) {
  return tape.Played() != nullptr && !options.hasOsType ? tape.Played()->osType : options.osType;
}

void SetUp(SessionTape& tape, const QueryOptions& options, const QueryPaths& paths) {
  if (!paths.record.empty() && (paths.record == paths.output || paths.record == paths.log)) {
    throw ProgramError(ExitStatus::kWrongArguments, "--record " + Printable(options.record) +
                                                        " is named twice: give each output a file of its own.");
  }
  if (!paths.replay.empty()) tape.Play(paths.replay);
  if (!paths.record.empty()) tape.Record(paths.record, OsType(options, tape), ToolDirectory(tape));
}

QueryHeader MakeHeader(const QueryOptions& options, const SessionTape& tape, const std::vector<std::string>& classes) {
  const HostServices& services = CurrentServices();
  return {services.machineName(), ToolDirectory(tape), services.localTime(), classes,
          options.repeat,         options.showRuns,    options.showUnread,   LayoutFor(WishesOf(options))};
}

// Everything that a query needs, in the order in which it is set up.
class Session {
 public:
  Session(const QueryOptions& options, const QueryPaths& paths, SessionTape& tape, std::ostream& err)
      : tape_(tape),
        log_(paths.log),
        progress_(options.showProgress && StandardErrorIsTerminal()
                      ? std::make_unique<Progress>(err, ProgressWidth(), MostRuns())
                      : nullptr),
        services_(options, log_, runs_, progress_.get(), tape),
        plugin_(paths.plugin),
        repository_(TRepository::Make(OsType(options, tape))) {}

  // Queries and shows as often as the header says.
  void Run(const QueryDisplay& display, const QueryHeader& header, std::ostream& out) {
    const auto classes = Classes(*repository_, header.classes);
    display.begin(out, header);
    for (unsigned number = 1; number <= header.queryCount; ++number) {
      repository_->BeginQuery(classes);
      const auto begin = Clock::now();
      plugin_.Query(repository_, classes);
      const double seconds = tape_.EndQuery(number, std::chrono::duration<double>(Clock::now() - begin).count());
      if (progress_) progress_->Clear();  // or the tables would go on in its line
      display.query(out, header, {number, repository_->Published(), log_.Take(), std::exchange(runs_, {}), seconds});
    }
    display.end(out, header);
    progress_.reset();
    log_.Finish();
  }

 private:
  using Clock = std::chrono::steady_clock;

  SessionTape& tape_;
  QueryLog log_;
  ToolRunList runs_;
  std::unique_ptr<Progress> progress_;
  SessionServices services_;
  Plugin plugin_;
  boost::shared_ptr<TRepository> repository_;
};

// What is to be said and waited for before tools are run.
void EnterCollection(std::optional<CollectionLock>& lock, std::ostream& err) {
  const std::string warning = WritableToolsWarning(fs::current_path());
  if (!warning.empty()) err << "hxahost: " << warning << std::endl;
  lock.emplace("zenx", [&err] {
    err << "hxahost: another program collects from this folder zenx: waiting until it is done." << std::endl;
  });
}

}  // namespace

void RunQueries(const QueryOptions& options, const QueryDisplay& display, std::ostream& out, std::ostream& err) {
  CheckWorkingDirectory();
  const QueryPaths paths = ReadPaths(options);
  const std::vector<std::string> classes = DeclaredNames(options.classes);
  for (const std::string& line : MissingDependencies(classes)) err << "hxahost: " << line << std::endl;
  EnterDirectory(options.directory);
  QueryOutput output(options, paths.output, out);
  SessionTape tape;
  SetUp(tape, options, paths);
  Session session(options, paths, tape, err);
  std::optional<CollectionLock> lock;
  if (paths.replay.empty()) EnterCollection(lock, err);
  try {
    session.Run(display, MakeHeader(options, tape, classes), output.Stream());
    output.Stream().flush();
  } catch (const ProgramError&) {
    throw;
  } catch (const std::exception& failure) {
    tape.Save(options.isMasked);  // whoever looks for the reason needs it most now
    throw ProgramError(ExitStatus::kQueryFailed,
                       "The query failed: " + Printable(failure.what()) + ". --log FILE shows how far it came." +
                           (output.IsFile() ? "" : " What was written before this is not whole."));
  }
  output.Finish();
  tape.Save(options.isMasked);
}

void RunQueryCommand(const QueryOptions& options, std::ostream& out, std::ostream& err) {
  const View& view = *FindView(options.format);
  RunQueries(options, {view.Begin, view.Query, view.End}, out, err);
}

}  // namespace hxahost
