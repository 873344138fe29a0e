#include "host/hxahost/system/standard_streams.h"

namespace hxahost {

// This system passes a program's bytes on unchanged, and terminals show UTF-8.
StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

}  // namespace hxahost
