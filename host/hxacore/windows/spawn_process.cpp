#include <algorithm>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/spawn_failure.h"
#include "host/hxacore/windows/child_process.h"

namespace NKVRHXA20 {

SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  const ULONGLONG deadline = GetTickCount64() + ULONGLONG{1000} * static_cast<ULONGLONG>(std::max(limitSeconds, 0));
  const ChildProcess child = StartProcess(path, arguments);
  SpawnResult result;
  const OutputEnd end = CollectOutput(child, deadline, result.output);
  if (end != OutputEnd::kComplete) EndProcessTree(child);

  if (end == OutputEnd::kTooLong) ThrowTooLong(path, limitSeconds);
  if (end == OutputEnd::kTooMuch) ThrowTooMuchOutput(path);
  DWORD exitCode = 0;
  if (GetExitCodeProcess(child.process.get(), &exitCode) != 0) result.exitStatus = exitCode;
  return result;
}

}  // namespace NKVRHXA20
