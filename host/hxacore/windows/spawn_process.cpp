#include <algorithm>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/spawn_failure.h"
#include "host/hxacore/windows/child_process.h"

namespace NKVRHXA20 {

SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  const ULONGLONG deadline = GetTickCount64() + ULONGLONG{1000} * static_cast<ULONGLONG>(std::max(limitSeconds, 0));
  ChildProcess child = StartProcess(path, arguments);
  SpawnResult result;
  const OutputEnd end = CollectOutput(child, deadline, result.output);
  EndProcessTree(path, child);
  DWORD exitCode = 0;
  const bool hasEnded = WaitForSingleObject(child.process.get(), 0) == WAIT_OBJECT_0;
  const long left = hasEnded ? 0 : static_cast<long>(GetProcessId(child.process.get()));

  if (end == OutputEnd::kTooLong) ThrowTooLong(path, limitSeconds, left);
  if (end == OutputEnd::kTooMuch) ThrowTooMuchOutput(path, left);
  if (GetExitCodeProcess(child.process.get(), &exitCode) != 0) {
    result.exitStatus = exitCode;
  } else {
    result.ending = kUnknownEnding;
  }
  return result;
}

}  // namespace NKVRHXA20
