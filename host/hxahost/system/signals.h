#pragma once

namespace hxahost {

// Makes the program independent of what its parent ignores: ends of children are reported, and output that nobody
// reads or that has no room is an error of the write.
void SetSignals();

}  // namespace hxahost
