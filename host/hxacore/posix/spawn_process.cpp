#include <cerrno>
#include <system_error>

#include <sys/stat.h>
#include <sys/wait.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/posix/child_process.h"
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

// "No such file" may refer to the interpreter of a script, or to the target of a link.
bool IsThere(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 || errno != ENOENT;
}

}  // namespace

SpawnResult SpawnProcess(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  const Deadline deadline = std::chrono::steady_clock::now() + std::chrono::seconds(limitSeconds);
  ChildProcess child = StartProcess(path, arguments);
  SpawnResult result;
  const OutputEnd end = CollectOutput(child, deadline, result.output);
  const bool isGone = EndProcessTree(child);
  if (child.startFailure != 0) {
    const bool isThere = child.startFailure != ENOENT || IsThere(path);
    ThrowNotStarted(path, std::generic_category().message(child.startFailure), isThere);
  }
  SetEnd(child.waitStatus, result);

  if (end == OutputEnd::kTooLong) ThrowTooLong(path, limitSeconds, isGone ? 0 : child.process);
  if (end == OutputEnd::kTooMuch) ThrowTooMuchOutput(path, isGone ? 0 : child.process);
  return result;
}

}  // namespace NKVRHXA20
