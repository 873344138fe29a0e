#include "host/hxahost/bundle/bundle.h"

#include <stdexcept>

using namespace NKVRHXA20;

namespace hxahost {

void Throw(const RecordedFailure& failure, double seconds) {
  switch (failure.kind) {
    case FailureKind::kNotInstalled: throw TSpawnException(SpawnFailure::kNotInstalled, failure.message, seconds);
    case FailureKind::kNotAsked: throw TSpawnException(SpawnFailure::kNotAsked, failure.message, seconds);
    case FailureKind::kNotStarted: throw TSpawnException(SpawnFailure::kNotStarted, failure.message, seconds);
    case FailureKind::kTooLong: throw TSpawnException(SpawnFailure::kTooLong, failure.message, seconds);
    case FailureKind::kNotEnded: throw TSpawnException(SpawnFailure::kNotEnded, failure.message, seconds);
    case FailureKind::kTooMuchOutput: throw TSpawnException(SpawnFailure::kTooMuchOutput, failure.message, seconds);
    case FailureKind::kNotOpened:
    case FailureKind::kHost: throw THXAException(failure.message);
    case FailureKind::kOther: break;
  }
  throw std::runtime_error(failure.message);
}

SpawnResult Repeat(const RecordedRun& run) {
  if (run.failure) Throw(*run.failure, run.result.seconds);
  return run.result;
}

std::string CommandText(const RecordedRun& run) {
  std::string text = run.path;
  for (const std::string& argument : run.arguments) text += " " + argument;
  return text;
}

RecordedSystem SystemOf(const std::shared_ptr<const Bundle>& bundle) {
  RecordedSystem system{bundle->osVersion, bundle->raidLogDir, nullptr};
  if (!bundle->raidLog) return system;
  const std::optional<RecordedFailure>& failure = bundle->raidLog->failure;
  if (failure && failure->kind == FailureKind::kNotOpened) {
    system.raidLogRefusal = failure->message;
  } else {
    system.raidLog = {bundle, &bundle->raidLog->bytes};
  }
  return system;
}

std::size_t ItemCount(const Bundle& bundle) { return bundle.runs.size() + (bundle.raidLog ? 1 : 0); }

}  // namespace hxahost
