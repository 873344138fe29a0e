#include "host/hxahost/program.h"

#include <exception>

#include "host/hxacore/schema.h"
#include "host/hxahost/diff_command.h"
#include "host/hxahost/exit_status.h"
#include "host/hxahost/options.h"
#include "host/hxahost/query_command.h"
#include "host/hxahost/schema_view.h"
#include "host/hxahost/text.h"

namespace hxahost {

namespace {

// Gives the exit status.
int Run(const CommandLine& commandLine, std::ostream& out, std::ostream& err) {
  switch (commandLine.command) {
    case Command::kShowText: out << commandLine.text; break;
    case Command::kQuery: RunQueryCommand(commandLine.query, out, err); break;
    case Command::kClasses: WriteClassList(out, NKVRHXA20::PublishedClasses()); break;
    case Command::kSchema: WriteMof(out, NKVRHXA20::PublishedClasses()); break;
    case Command::kDiff: return RunDiffCommand(commandLine.diff, out);
  }
  out.flush();
  if (!out) {
    throw ProgramError(ExitStatus::kQueryFailed,
                       "Standard output could not be written: see whether there is room where it goes.");
  }
  return static_cast<int>(ExitStatus::kDone);
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
    return Fail(err, error.Status(), error.what());
  } catch (const std::exception& failure) {
    return Fail(err, ExitStatus::kQueryFailed, "Failed: " + Printable(failure.what()) + ".");
  }
}

}  // namespace hxahost
