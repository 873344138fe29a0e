#pragma once

namespace hxahost {

// The message if there is not enough memory.
inline constexpr const char* kNoMemory =
    "There is not enough memory: read smaller files (--input-limit), ask for fewer classes (--class), or run it on a "
    "machine with more.";

}  // namespace hxahost
