#include <sys/wait.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/posix/child_process.h"
#include "host/hxacore/posix/process_tree.h"
#include "host/hxacore/spawn_failure.h"

namespace NKVRHXA20 {

namespace {

void SetEnd(std::optional<int> waitStatus, SpawnResult& result) {
  if (!waitStatus) {
    result.ending = kUnknownEnding;
  } else if (WIFEXITED(*waitStatus)) {
    result.exitStatus = WEXITSTATUS(*waitStatus);
  } else if (WIFSIGNALED(*waitStatus)) {
    result.ending = "signal " + std::to_string(WTERMSIG(*waitStatus));
  }
}

}  // namespace

SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  const Deadline deadline = std::chrono::steady_clock::now() + std::chrono::seconds(limitSeconds);
  const ChildProcess child = StartProcess(path, arguments);
  SpawnResult result;
  const OutputEnd end = CollectOutput(child, deadline, result.output);
  if (end != OutputEnd::kComplete) EndProcessTree(child);
  if (HasEnded(child)) SetEnd(Reap(child), result);  // where even the kernel cannot end it, waiting would last for ever

  if (end == OutputEnd::kTooLong) ThrowTooLong(path, limitSeconds);
  if (end == OutputEnd::kTooMuch) ThrowTooMuchOutput(path);
  return result;
}

}  // namespace NKVRHXA20
