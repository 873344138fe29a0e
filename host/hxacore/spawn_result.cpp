#include "host/hxacore/spawn_result.h"

namespace NKVRHXA20 {

TSpawnException::TSpawnException(SpawnFailure failure, const std::string& message, double seconds)
    : THXAException(message), failure_(failure), seconds_(seconds) {}
TSpawnException::~TSpawnException() = default;

}  // namespace NKVRHXA20
