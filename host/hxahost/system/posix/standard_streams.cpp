#include "host/hxahost/system/standard_streams.h"

namespace hxahost {

// Nothing stands between a program and its bytes here, and terminals show UTF-8.
StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

}  // namespace hxahost
