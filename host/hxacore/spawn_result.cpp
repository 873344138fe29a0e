#include "host/hxacore/spawn_result.h"

namespace NKVRHXA20 {

TSpawnException::TSpawnException(SpawnFailure failure, const std::string& message)
    : THXAException(message), failure_(failure) {}
TSpawnException::~TSpawnException() = default;

}  // namespace NKVRHXA20
