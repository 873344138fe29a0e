#include "host/hxahost/program/diff_command.h"

#include <exception>
#include <new>

#include "host/hxahost/diff/diff_source.h"
#include "host/hxahost/diff/result_diff.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/no_memory.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

int Compare(const DiffOptions& options, std::ostream& out) {
  const JsonResult before = ReadResultOrBundle(PathFromUtf8(options.oldFile), options.inputLimit);
  const JsonResult after = ReadResultOrBundle(PathFromUtf8(options.newFile), options.inputLimit);
  const ResultDiff diff = CompareResults(before, after);
  WriterOf<DiffWriter>("diff", options.format)(out, {options.oldFile, before.machine}, {options.newFile, after.machine},
                                               diff, options.isVerbose);
  out.flush();
  if (!out) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "Standard output could not be written: see whether there is room where it goes.");
  }
  return IsSame(diff) ? 0 : 1;
}

}  // namespace

int RunDiffCommand(const DiffOptions& options, std::ostream& out) {
  try {
    return Compare(options, out);
  } catch (const ProgramError&) {
    throw;
  } catch (const std::bad_alloc&) {
    throw ProgramError(ExitStatus::kWrongArguments, kNoMemory);
  } catch (const std::exception& failure) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "The results could not be compared: " + Printable(failure.what()) + ".");
  }
}

}  // namespace hxahost
