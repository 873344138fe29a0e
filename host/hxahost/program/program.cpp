#include "host/hxahost/program/program.h"

#include <exception>
#include <new>

#include "host/hxacore/schema.h"
#include "host/hxahost/program/bundle_command.h"
#include "host/hxahost/program/diff_command.h"
#include "host/hxahost/program/explain_command.h"
#include "host/hxahost/program/fleet_command.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/health_command.h"
#include "host/hxahost/program/options.h"
#include "host/hxahost/program/query_command.h"
#include "host/hxahost/schema/schema_view.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/no_memory.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

// Returns the exit status.
int Run(const CommandLine& commandLine, std::ostream& out, std::ostream& err) {
  int status = static_cast<int>(ExitStatus::kDone);
  switch (commandLine.command) {
    case Command::kShowText: out << commandLine.text; break;
    case Command::kStatus: status = static_cast<int>(RunStatusCommand(commandLine.query, out, err)); break;
    case Command::kQuery: status = static_cast<int>(RunQueryCommand(commandLine.query, out, err)); break;
    case Command::kHealth: status = static_cast<int>(RunHealthCommand(commandLine.query, out, err)); break;
    case Command::kExplain: RunExplainCommand(commandLine.query, commandLine.object, out, err); break;
    case Command::kHealthRules: WriteHealthRules(out); break;
    case Command::kClasses: WriteClassList(out, NKVRHXA20::PublishedClasses()); break;
    case Command::kSchema:
      WriterOf<SchemaWriter>("schema", commandLine.schemaFormat)(out, NKVRHXA20::ExportedClasses(),
                                                                 commandLine.withSuperclasses);
      break;
    case Command::kBundleList: ListBundle(commandLine.bundle, out); break;
    case Command::kBundleShow: ShowBundle(commandLine.bundle, out); break;
    case Command::kBundleMask: MaskBundleFile(commandLine.bundle, out); break;
    case Command::kFleet: status = static_cast<int>(RunFleetCommand(commandLine.fleet, out, err)); break;
    case Command::kDiff: status = RunDiffCommand(commandLine.diff, out); break;
  }
  out.flush();
  if (!out) {
    throw ProgramError(ExitStatus::kQueryFailed,
                       "Standard output could not be written: see whether there is room where it goes.");
  }
  return status;
}

// For monitoring programs 1 is a warning and 2 is critical. A failure of "health" means that the health is unknown.
ExitStatus StatusFor(const std::vector<std::string>& arguments, ExitStatus status) {
  const bool isHealth = !arguments.empty() && arguments.front() == "health";
  return isHealth ? ExitStatus::kHealthUnknown : status;
}

int Fail(std::ostream& err, ExitStatus status, const std::string& message) {
  err << "hxahost: " << message << std::endl;
  return static_cast<int>(status);
}

}  // namespace

int RunProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  try {
    return Run(ParseCommandLine(arguments), out, err);
  } catch (const ProgramError& error) {
    return Fail(err, StatusFor(arguments, error.Status()), error.what());
  } catch (const std::bad_alloc&) {
    return Fail(err, StatusFor(arguments, ExitStatus::kQueryFailed), kNoMemory);
  } catch (const std::exception& failure) {
    return Fail(err, StatusFor(arguments, ExitStatus::kQueryFailed), "Failed: " + Printable(failure.what()) + ".");
  }
}

}  // namespace hxahost
